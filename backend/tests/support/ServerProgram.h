// SPDX-License-Identifier: MIT
#pragma once

#include "support/HttpClient.h"

#include <QProcess>
#include <QUrl>

#include <string>

/// The real program as a process of its own, on a free loopback port.
class ServerProgram {
public:
    /// Returns when it listens. `options` besides --port.
    ServerProgram(const QString &program, const QStringList &options)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(program, QStringList{QStringLiteral("serve"), QStringLiteral("--port=0")} + options);
        m_process.waitForReadyRead();
        const auto line = QString::fromUtf8(m_process.readAllStandardOutput()).trimmed();
        m_port = static_cast<uint16_t>(QUrl(line.section(QLatin1Char(' '), -1)).port(0));
    }

    ~ServerProgram() { kill(); }

    uint16_t port() const { return m_port; }
    qint64 processId() const { return m_process.processId(); }
    HttpClient connect() const { return HttpClient(m_port); }

    /// With SIGKILL.
    void kill()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    /// With SIGTERM; its exit code.
    int stop()
    {
        m_process.terminate();
        m_process.waitForFinished();
        return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
    }

private:
    QProcess m_process;
    uint16_t m_port = 0;
};
