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

    /// What the program does when it has been launched: the fonts, the shortcuts, and the view that is needed first.
    void start();

    AppModel &model();
    const Platform &platform() const;

private:
    struct Parts;

    explicit Composition(std::unique_ptr<Parts> parts);

    std::unique_ptr<Parts> m_parts;
};
