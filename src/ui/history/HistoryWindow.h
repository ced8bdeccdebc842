// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <memory>

class Application;
class Preferences;
class QWindow;
class Screens;

/// The one history window: made at the first `show`, kept for the life of the program, put away when hidden or closed.
/// Its place is remembered under the preference "HistoryWindow". Main thread only.
class HistoryWindow : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The program makes it")
    Q_PROPERTY(bool isVisible READ isVisible NOTIFY isVisibleChanged)
    Q_PROPERTY(bool isEditingGroups READ isEditingGroups WRITE setEditingGroups NOTIFY isEditingGroupsChanged)

public:
    /// Makes the window with the view in it, not yet shown.
    using WindowFactory = std::function<std::unique_ptr<QWindow>(HistoryWindow &)>;

    HistoryWindow(Application &application, Preferences &preferences, const Screens &screens, WindowFactory makeWindow);
    HistoryWindow(const HistoryWindow &) = delete;
    HistoryWindow &operator=(const HistoryWindow &) = delete;
    ~HistoryWindow() override;

    /// Brings the window to the front, with the group editor open when `editingGroups`.
    void show(bool editingGroups);
    /// Puts the window away; with no other window of ours left, the program that was in front before is again.
    Q_INVOKABLE void hide();
    /// What the history shortcut does: puts the window away when it is what the user looks at, else brings it forward.
    void toggle();

    /// The window is on screen.
    bool isVisible() const { return m_isVisible; }
    /// The window is shown and this program has the keyboard focus.
    bool isInFront() const { return m_isInFront; }
    /// The group editor is open on top of the window.
    bool isEditingGroups() const { return m_isEditingGroups; }
    void setEditingGroups(bool isEditing);

Q_SIGNALS:
    void isVisibleChanged();
    void isEditingGroupsChanged();

private:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void makeWindow();
    void windowWillClose();
    void setVisible(bool isVisible);

    Application &m_application;
    Preferences &m_preferences;
    const Screens &m_screens;
    WindowFactory m_makeWindow;
    std::unique_ptr<QWindow> m_window;
    bool m_isVisible = false;
    bool m_isInFront = false;
    bool m_isEditingGroups = false;
};
