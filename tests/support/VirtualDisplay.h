// SPDX-License-Identifier: MIT
#pragma once

#include "support/ChildProcess.h"

#include <QByteArray>
#include <QProcessEnvironment>

#include <memory>

/// An X server without hardware, for the test alone, on a display number nobody else uses.
class VirtualDisplay {
public:
    enum class WindowManager { None, Openbox };

    /// Both run when the constructor returns; it throws std::runtime_error when one does not start. `options` are for
    /// the X server.
    explicit VirtualDisplay(WindowManager windowManager = WindowManager::None, const QStringList &options = {});
    VirtualDisplay(const VirtualDisplay &) = delete;
    VirtualDisplay &operator=(const VirtualDisplay &) = delete;
    ~VirtualDisplay();

    /// For instance ":7".
    const QByteArray &name() const { return m_name; }

    /// The environment of the test, with this display.
    QProcessEnvironment environment() const;

    /// Makes it the display of this process.
    void use() const;

    /// Ends the server under its clients.
    void stop() { m_server.terminate(); }

private:
    ChildProcess m_server;
    QByteArray m_name;
    std::unique_ptr<ChildProcess> m_windowManager;
};
