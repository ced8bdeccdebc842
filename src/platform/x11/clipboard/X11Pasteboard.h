// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"
#include "platform/Pasteboard.h"
#include "platform/x11/connection/X11Connection.h"

#include <QThread>
#include <QTimer>

class SelectionOwner;

/// The CLIPBOARD selection. It is served from a thread and a connection of its own: a toolkit that pastes waits for the
/// data without turning its event loop, and the window it pastes into may be this program's. Reading and counting have
/// a connection of their own too, so that bringing the change count up to date delivers no other event.
/// A reading that is still suspended when the pasteboard is destroyed never ends. What this program wrote last is
/// handed to the desktop's clipboard manager then; where there is none, it goes with the program, as every program's
/// does.
class X11Pasteboard final : public Pasteboard {
public:
    /// By default on the display of $DISPLAY; null when there is none or it has no XFIXES extension.
    static std::unique_ptr<X11Pasteboard> create(Clock &clock, const QByteArray &displayName = {});
    ~X11Pasteboard() override;

    int64_t changeCount() override;
    int64_t readCount() const override;
    QCoro::Task<QList<PasteboardItem>> items() override;
    /// Takes effect at the next turn of the event loop, or with the next other call; a write takes its place.
    void clear() override;
    bool write(const QList<PasteboardItem> &items) override;

private:
    class Server;
    class Counter;

    X11Pasteboard(Clock &clock, std::unique_ptr<X11Connection> connection, std::unique_ptr<Server> server);
    void clearNow();
    void forgetWhatIsReplaced();

    Clock &m_clock;
    std::unique_ptr<X11Connection> m_connection;
    std::unique_ptr<Server> m_server;
    std::unique_ptr<Counter> m_counter;
    PasteboardItem m_written; // what this program wrote last
    bool m_clearPending = false;
    QTimer m_nextTurn;
};
