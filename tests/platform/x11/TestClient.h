// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/connection/XcbPtr.h"
#include "support/VirtualDisplay.h"

#include <QByteArray>
#include <QRect>
#include <QRgb>

#include <functional>
#include <string>

/// Another program on the display, and the user's hands: it owns windows and types through XTEST. Every call is done
/// by the server when it returns.
class TestClient {
public:
    explicit TestClient(const VirtualDisplay &display);
    TestClient(const TestClient &) = delete;
    TestClient &operator=(const TestClient &) = delete;
    ~TestClient();

    xcb_connection_t *xcb() const { return m_xcb; }
    xcb_window_t root() const { return m_root; }
    xcb_atom_t atom(const QByteArray &name);
    void sync();

    /// A white window on the screen that gets keys, clicks and property changes.
    xcb_window_t addWindow(const QByteArray &windowClass = {}, xcb_window_t parent = noWindow);
    void destroyWindow(xcb_window_t window);
    void focus(xcb_window_t window);
    xcb_window_t focusedWindow();

    /// Keys by their evdev codes.
    void press(int evdevCode);
    void release(int evdevCode);
    void tap(int evdevCode);
    /// The same on the server's own keyboard instead of the one of synthetic keys.
    void pressOnKeyboard(int evdevCode);
    void releaseOnKeyboard(int evdevCode);
    void moveTo(int x, int y);
    void click(int x, int y);
    /// Clicks, and waits for the menu that opens: where it is on the screen, empty when none comes.
    QRect clickForMenu(int x, int y);

    bool grabsKey(int evdevCode, uint16_t modifiers);
    void lockGroup(uint8_t group);

    bool ownsSelection(xcb_window_t window, const QByteArray &selection = "CLIPBOARD");
    xcb_window_t selectionOwner();

    /// Around what has the colour on the screen, in its upper left corner of that size.
    QRect extent(QRgb colour, QSize corner);

    /// The next event for which the condition holds, waited for while the event loop runs; null when none comes.
    /// Events before it are dropped.
    XcbPtr<xcb_generic_event_t> next(const std::function<bool(const xcb_generic_event_t &)> &condition);
    XcbPtr<xcb_generic_event_t> next(uint8_t type);

    /// The keys its windows got until now, like "+37/0 -37/4": pressed or released, key code, modifiers before.
    std::string takeKeys();

    /// How many events of a type came until now.
    int takeEvents(uint8_t type);

private:
    void fake(uint8_t type, int detail, int x = 0, int y = 0);
    void fakeOnKeyboard(uint8_t type, int evdevCode);

    xcb_connection_t *m_xcb;
    xcb_window_t m_root;
};
