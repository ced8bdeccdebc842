// SPDX-License-Identifier: MIT
#include "ui/history/HistoryWindow.h"

#include "platform/Application.h"
#include "platform/Preferences.h"
#include "ui/windows/WindowPlacement.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWindow>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString frameKey = u"HistoryWindow"_s;

bool isTitledAndVisible(const QWindow *window)
{
    return window->isVisible() && !window->flags().testFlag(Qt::FramelessWindowHint) &&
           (window->type() == Qt::Window || window->type() == Qt::Dialog);
}

} // namespace

HistoryWindow::HistoryWindow(Application &application, Preferences &preferences, const Screens &screens,
                             WindowFactory makeWindow)
    : m_application(application), m_preferences(preferences), m_screens(screens), m_makeWindow(std::move(makeWindow))
{
    m_application.setActivationHandler([this](bool isOurs) { m_isInFront = isOurs; });
}

HistoryWindow::~HistoryWindow()
{
    m_application.setActivationHandler({});
    if (m_window) {
        windowWillClose();
    }
}

void HistoryWindow::show(bool editingGroups)
{
    if (!m_window) {
        makeWindow();
    }
    if (editingGroups) {
        setEditingGroups(true);
    }
    m_application.bringToFront(*m_window);
    setVisible(true);
    m_isInFront = true;
}

void HistoryWindow::hide()
{
    if (m_window) {
        windowWillClose();
        m_window->hide();
    }
    if (std::ranges::none_of(QGuiApplication::topLevelWindows(), &isTitledAndVisible)) {
        m_application.hide();
    }
}

void HistoryWindow::toggle()
{
    if (m_window && m_window->isVisible() && m_isInFront) {
        hide();
    } else {
        show(false);
    }
}

void HistoryWindow::setEditingGroups(bool isEditing)
{
    if (m_isEditingGroups != isEditing) {
        m_isEditingGroups = isEditing;
        Q_EMIT isEditingGroupsChanged();
    }
}

bool HistoryWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Close) {
        windowWillClose();
    } else if (event->type() == QEvent::FocusIn) {
        m_isInFront = true;
    }
    return QObject::eventFilter(watched, event);
}

void HistoryWindow::makeWindow()
{
    m_window = m_makeWindow(*this);
    m_window->installEventFilter(this);
    WindowPlacement::centre(*m_window, m_screens);
    if (const auto frame = m_preferences.string(frameKey)) {
        WindowPlacement::restore(*m_window, *frame, m_screens);
    }
}

void HistoryWindow::windowWillClose()
{
    if (m_isVisible) {
        const QString frame = WindowPlacement::saved(*m_window);
        if (m_preferences.string(frameKey) != frame) {
            m_preferences.setString(frameKey, frame);
        }
    }
    setVisible(false);
    m_isInFront = false;
}

void HistoryWindow::setVisible(bool isVisible)
{
    if (m_isVisible != isVisible) {
        m_isVisible = isVisible;
        Q_EMIT isVisibleChanged();
    }
}
