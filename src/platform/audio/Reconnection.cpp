// SPDX-License-Identifier: MIT
#include "platform/audio/Reconnection.h"

#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr Clock::Duration firstDelay = 100ms;
constexpr Clock::Duration lastDelay = 30s;

} // namespace

Reconnection::Reconnection(PulseContext &context, Clock &clock, QString socketFolder)
    : m_context(context), m_clock(clock), m_socketFolder(std::move(socketFolder)), m_delay(firstDelay)
{
    QObject::connect(&m_context, &PulseContext::changed, &m_watcher, [this] { follow(); });
    QObject::connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_watcher, [this] {
        m_delay = firstDelay;
        retry();
    });
}

QString Reconnection::socketFolder(QByteArray server)
{
    if (server.isEmpty()) {
        server = qgetenv("PULSE_SERVER");
    }
    if (!server.isEmpty()) { // "{machine}unix:/path", "unix:/path" or "/path"
        const auto path = server.indexOf('/');
        const bool local = path == 0 || server.first(std::max<qsizetype>(path, 0)).endsWith("unix:");
        return local ? QFileInfo(QString::fromLocal8Bit(server.sliced(path))).path() : QString();
    }
    if (QString folder = qEnvironmentVariable("PULSE_RUNTIME_PATH"); !folder.isEmpty()) {
        return folder;
    }
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + u"/pulse"_s;
}

void Reconnection::follow()
{
    switch (m_context.connection()) {
    case PulseContext::Connection::Connecting:
        return;
    case PulseContext::Connection::Ready:
        m_timer.reset();
        m_delay = firstDelay;
        if (!m_watcher.directories().isEmpty()) {
            m_watcher.removePaths(m_watcher.directories());
        }
        return;
    case PulseContext::Connection::None:
        if (m_watcher.directories().isEmpty() && QFileInfo::exists(m_socketFolder)) {
            m_watcher.addPath(m_socketFolder);
        }
        m_timer = m_clock.after(m_delay, [this] { retry(); });
        m_delay = std::min(m_delay * 2, lastDelay);
        return;
    }
}

void Reconnection::retry()
{
    m_timer.reset();
    m_context.connectToServer(); // a refusal is announced as a change, too
}
