// SPDX-License-Identifier: MIT
#include "app/Backend.h"

#include "app/EngineChoice.h"
#include "http/AccessLog.h"
#include "support/Log.h"

#include <QDir>
#include <QFileInfo>
#include <sys/resource.h>
#include <systemd/sd-daemon.h>

#include <csignal>

namespace {

/// Makes the folder of an SQLite file.
QString withFolder(const QString &database)
{
    const QDir folder(QFileInfo(database).absolutePath());
    if (!Database::isPostgreSql(database) && !folder.exists()) {
        QDir().mkpath(folder.path());
        QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    return database;
}

net::ip::tcp::acceptor passedSocket(net::io_context &io)
{
    const auto descriptor = SD_LISTEN_FDS_START;
    for (const auto family : {AF_INET, AF_INET6}) {
        constexpr int listening = 1;
        if (sd_is_socket(descriptor, family, SOCK_STREAM, listening) > 0) {
            return {io, family == AF_INET ? net::ip::tcp::v4() : net::ip::tcp::v6(), descriptor};
        }
    }
    throw std::runtime_error("the socket that systemd passed is not a listening TCP socket");
}

net::ip::tcp::acceptor listen(net::io_context &io, const net::ip::tcp::endpoint &endpoint)
{
    constexpr int unsetEnvironment = 1;
    if (const auto count = sd_listen_fds(unsetEnvironment); count == 1) {
        return passedSocket(io);
    } else if (count > 1) {
        throw std::runtime_error("systemd passed more than one socket");
    }
    try {
        return {io, endpoint};
    } catch (const boost::system::system_error &error) {
        throw std::runtime_error("can't listen on port " + std::to_string(endpoint.port()) + " of " +
                                 endpoint.address().to_string() + ": " + error.code().message());
    }
}

std::string urlOf(const net::ip::tcp::endpoint &endpoint)
{
    const auto address = endpoint.address().to_string();
    const auto host = endpoint.address().is_v6() ? "[" + address + "]" : address;
    return "http://" + host + ":" + std::to_string(endpoint.port());
}

/// With the address of checkout links, which is that of the listening socket when the operator names none.
ApiOptions reachedAt(const net::ip::tcp::endpoint &endpoint, ApiOptions options)
{
    using Provider = CheckoutOptions::Provider;
    auto &checkout = options.checkout;
    const auto isPublic = !checkout.publicUrl.empty() || !endpoint.address().is_loopback();
    if (checkout.publicUrl.empty()) {
        if (endpoint.address().is_unspecified() && checkout.provider != Provider::None) {
            throw std::runtime_error("public-url is needed for the checkout links, unless checkout is none");
        }
        checkout.publicUrl = urlOf(endpoint);
    }
    if (checkout.provider == Provider::Manual && isPublic) {
        logLine("warning: with checkout = \"manual\", everyone who reaches this server can give themselves tokens");
    }
    return options;
}

Server::AccessLog accessLog(Metrics &metrics, bool written)
{
    return [&metrics, written](const AccessRecord &record) {
        metrics.answered(record);
        if (written) {
            writeLine(accessLine(record));
        }
    };
}

/// Each connection takes a file descriptor, and the usual limit of 1024 is for programs that use select().
void allowManyConnections()
{
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) == 0) {
        limit.rlim_cur = limit.rlim_max;
        setrlimit(RLIMIT_NOFILE, &limit);
    }
}

} // namespace

Backend::Backend(const Settings &settings, std::unique_ptr<Engine> engine)
    : m_signals(m_io, SIGTERM, SIGINT),
      m_store(withFolder(settings.database), settings.grants, systemClock()),
      m_transcriber(std::move(engine), longestRecording, settings.engineQueue),
      m_acceptor(listen(m_io, settings.endpoint)),
      m_url(urlOf(m_acceptor.local_endpoint())),
      m_api(reachedAt(m_acceptor.local_endpoint(), settings.api), m_store, m_transcriber, systemClock()),
      m_server(std::move(m_acceptor), m_api, settings.server, accessLog(m_api.metrics(), settings.accessLog))
{
    allowManyConnections();
    m_api.countConnections([this] { return m_server.connections(); });
}

bool Backend::run()
{
    m_signals.async_wait([this](const boost::system::error_code &error, int) {
        if (!error) {
            m_signals.clear();
            sd_notify(0, "STOPPING=1");
            m_transcriber.stop();
            m_server.stop([this] {
                m_gaveUp = true;
                m_io.stop();
            });
        }
    });
    m_server.start();
    sd_notify(0, "READY=1");
    m_io.run();
    return !m_gaveUp;
}
