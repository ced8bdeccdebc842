// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/connection/X11Extensions.h"
#include "platform/x11/connection/XcbPtr.h"

#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QSocketNotifier>

#include <deque>
#include <functional>
#include <memory>
#include <vector>

class X11Connection;

/// Receives the events of a connection for as long as it lives. It is destroyed before the connection.
class X11Listener {
public:
    explicit X11Listener(X11Connection &connection);
    X11Listener(const X11Listener &) = delete;
    X11Listener &operator=(const X11Listener &) = delete;
    virtual ~X11Listener();

    /// Called from the event loop with every event but errors, in the order of arrival. It may destroy listeners, this
    /// one included.
    virtual void handle(const xcb_generic_event_t &event) = 0;

private:
    X11Connection &m_connection;
};

/// A connection to the X server and its event queue. Belongs to the thread that creates it, which runs an event loop.
/// When the server goes away every request fails at once and `closed` is emitted, once.
class X11Connection final : public QObject {
    Q_OBJECT

public:
    /// Connects to a display, by default that of $DISPLAY; null when there is none.
    static std::unique_ptr<X11Connection> create(const QByteArray &displayName = {});
    ~X11Connection() override;

    xcb_connection_t *xcb() const { return m_xcb.get(); }
    const X11Extensions &extensions() const { return m_extensions; }
    xcb_window_t root() const { return m_root; }
    int screenNumber() const { return m_screenNumber; }

    /// An unmapped window that owns nothing but properties.
    xcb_window_t window() const { return m_window; }

    /// Atoms are asked for once. XCB_ATOM_NONE when the server is gone.
    xcb_atom_t atom(const QByteArray &name);
    QByteArray atomName(xcb_atom_t atom);

    void flush() { xcb_flush(m_xcb.get()); }

    /// The server's time now, from a change to a property.
    xcb_timestamp_t serverTime();

    /// Waits until the server has done all requests, then offers the events that arrived, in order. One for which
    /// `take` returns true is done with; the others stay for the listeners, who are not called here.
    void takeArrived(const std::function<bool(const xcb_generic_event_t &)> &take);

Q_SIGNALS:
    void closed();

private:
    friend class X11Listener;
    using Event = XcbPtr<xcb_generic_event_t>;

    struct Disconnect {
        void operator()(xcb_connection_t *connection) const { xcb_disconnect(connection); }
    };
    using Handle = std::unique_ptr<xcb_connection_t, Disconnect>;

    X11Connection(Handle xcb, int screenNumber);

    void negotiateExtensions();
    void scheduleArrived();
    void dispatch();
    void offer(const xcb_generic_event_t &event);
    void noticeClosing();

    Handle m_xcb;
    int m_screenNumber;
    xcb_window_t m_root;
    xcb_window_t m_window;
    X11Extensions m_extensions;
    QHash<QByteArray, xcb_atom_t> m_atoms;
    std::deque<Event> m_arrived;
    std::vector<X11Listener *> m_listeners; // null where one was removed during a dispatch
    int m_dispatchDepth = 0;
    bool m_scheduled = false;
    QSocketNotifier m_notifier;
};
