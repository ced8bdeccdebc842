// SPDX-License-Identifier: MIT
#pragma once

#include "support/ChildProcess.h"
#include "support/HttpClient.h"

#include <QUrl>

/// The real program as a process of its own, on a free loopback port.
class ServerProgram : public ChildProcess {
public:
    /// Returns when it listens. `options` besides --port.
    explicit ServerProgram(const QStringList &options)
        : ChildProcess(QStringLiteral(QUILLO_BACKEND_PROGRAM),
                       QStringList{QStringLiteral("serve"), QStringLiteral("--port=0")} + options),
          m_port(static_cast<uint16_t>(QUrl(readLine().section(QLatin1Char(' '), -1)).port(0)))
    {
    }

    uint16_t port() const { return m_port; }
    HttpClient connect() const { return HttpClient(m_port); }

    /// With SIGTERM; its exit code.
    int stop()
    {
        process().terminate();
        return wait();
    }

private:
    uint16_t m_port;
};
