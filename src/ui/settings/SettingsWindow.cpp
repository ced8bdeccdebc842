// SPDX-License-Identifier: MIT
#include "ui/settings/SettingsWindow.h"

#include "platform/Application.h"
#include "ui/windows/WindowPlacement.h"

#include <QWindow>

SettingsWindow::SettingsWindow(Application &application, const Screens &screens, WindowFactory makeWindow)
    : m_application(application), m_screens(screens), m_makeWindow(std::move(makeWindow))
{
}

SettingsWindow::~SettingsWindow() = default;

void SettingsWindow::show()
{
    if (!m_window) {
        m_window = m_makeWindow();
        WindowPlacement::centre(*m_window, m_screens);
    }
    m_application.bringToFront(*m_window);
}
