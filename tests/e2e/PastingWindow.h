// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/TestClient.h"

#include <QSocketNotifier>
#include <QStringList>

#include <chrono>

/// A program in front that notes what is pasted into it: on Ctrl+V it asks for the clipboard's text.
class PastingWindow {
public:
    /// Shown, with the keyboard focus, when the constructor returns.
    explicit PastingWindow(const VirtualDisplay &display);

    /// How long it takes to ask; below zero it never does.
    std::chrono::milliseconds delay{0};

    /// What has been pasted, in order.
    QStringList pasted;
    /// Keystrokes of pasting that came.
    int pastes = 0;

    /// In front, with the keyboard focus, when it returns.
    void show();
    /// Leaves nothing on the screen that could have the focus.
    void hide();

private:
    void follow();
    void ask();
    void note(const xcb_selection_notify_event_t &answer);

    TestClient m_client;
    xcb_window_t m_window;
    QSocketNotifier m_events;
};
