// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"
#include "platform/audio/PulseContext.h"

#include <QFileSystemWatcher>

/// Restores a lost connection: when something appears in the folder of the server's socket, and on a timer that slows
/// down. With a connection it does nothing at all. Main thread only.
class Reconnection {
public:
    /// The context and the clock outlive it.
    Reconnection(PulseContext &context, Clock &clock, QString socketFolder);

    /// Folder of the socket that `server` names; of the desktop's own for an empty one. Empty when it is not local.
    static QString socketFolder(QByteArray server);

private:
    void follow();
    void retry();

    PulseContext &m_context;
    Clock &m_clock;
    const QString m_socketFolder;
    Clock::Duration m_delay;
    std::unique_ptr<Clock::Timer> m_timer;
    QFileSystemWatcher m_watcher;
};
