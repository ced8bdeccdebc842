// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <memory>

class AppModel;
struct Platform;

/// Everything the program is made of, built once: the desktop's services, the controller on top of them, and the
/// views' engine. Main thread only; a QGuiApplication exists for as long as it lives.
class Composition {
public:
    /// Null when the desktop lacks something the program can't do without; `whyNot` is then a sentence for the user.
    static std::unique_ptr<Composition> create(QString *whyNot);

    Composition(const Composition &) = delete;
    Composition &operator=(const Composition &) = delete;
    ~Composition();

    AppModel &model();
    const Platform &platform() const;

    /// Makes the packaged fonts known to the views; before any is made.
    static void registerFonts();

    /// Loads the views, so that the first HUD appears as fast as the later ones.
    void prepareViews();

private:
    struct Parts;

    explicit Composition(std::unique_ptr<Parts> parts);

    std::unique_ptr<Parts> m_parts;
};
