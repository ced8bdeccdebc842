// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>

class Application;
class QWindow;
class Screens;

/// The one settings window: made at the first `show`, only hidden when closed. Main thread only.
class SettingsWindow {
public:
    /// Makes the window with the view in it, not yet shown.
    using WindowFactory = std::function<std::unique_ptr<QWindow>()>;

    SettingsWindow(Application &application, const Screens &screens, WindowFactory makeWindow);
    SettingsWindow(const SettingsWindow &) = delete;
    SettingsWindow &operator=(const SettingsWindow &) = delete;
    ~SettingsWindow();

    /// Brings the window to the front with the keyboard focus.
    void show();

private:
    Application &m_application;
    const Screens &m_screens;
    WindowFactory m_makeWindow;
    std::unique_ptr<QWindow> m_window;
};
