// SPDX-License-Identifier: MIT
#pragma once

#include "platform/audio/DefaultSource.h"
#include "platform/audio/PulseRelease.h"

#include <QObject>

/// The connection to the sound server, kept open, with the thread that serves it. It belongs to the main thread. The
/// lock (`lock`, `unlock`; recursive) keeps that thread out: it holds the lock whenever it calls back. No call waits
/// for the server.
class PulseContext : public QObject {
    Q_OBJECT

public:
    enum class Connection { None, Connecting, Ready };

    /// Whether there is something to record; Pending while the server has not answered yet.
    enum class Source { None, Pending, Present };

    /// `server` as in $PULSE_SERVER; empty for the desktop's own. Throws std::runtime_error when no thread can be made.
    explicit PulseContext(QByteArray server);
    ~PulseContext() override;

    /// Connects unless connected or connecting. A server that is not there is known at once: Connection::None
    /// afterwards.
    void connectToServer();

    Connection connection() const;
    Source source() const;

    /// The server runs and last refused this user.
    bool isDenied() const;

    void lock() const { pa_threaded_mainloop_lock(m_loop.get()); }
    void unlock() const { pa_threaded_mainloop_unlock(m_loop.get()); }

    /// With the lock held: the ready context and the name of the default source.
    pa_context *context() const { return m_context; }
    const QByteArray &sourceName() const { return m_source.name(); }

Q_SIGNALS:
    /// The connection or the source may have changed. From the event loop.
    void changed();

private:
    static void onState(pa_context *context, void *self);
    pa_context *makeContext() const;
    void dropContext();
    void postChanged();

    const QByteArray m_server;
    const PulseLoop m_loop;
    pa_context *m_context = nullptr;
    DefaultSource m_source;
    bool m_denied = false;
};
