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

net::ip::tcp::acceptor bound(net::io_context &io, const net::ip::tcp::endpoint &endpoint)
{
    try {
        return {io, endpoint};
    } catch (const boost::system::system_error &error) {
        throw std::runtime_error("can't listen on port " + std::to_string(endpoint.port()) + " of " +
                                 endpoint.address().to_string() + ": " + error.code().message());
    }
}

net::ip::tcp::acceptor listen(net::io_context &io, const net::ip::tcp::endpoint &endpoint)
{
    constexpr int unsetEnvironment = 1;
    if (const auto count = sd_listen_fds(unsetEnvironment); count == 1) {
        return passedSocket(io);
    } else if (count > 1) {
        throw std::runtime_error("systemd passed more than one socket");
    }
    return bound(io, endpoint);
}

std::string urlOf(const net::ip::tcp::endpoint &endpoint)
{
    const auto address = endpoint.address().to_string();
    const auto host = endpoint.address().is_v6() ? "[" + address + "]" : address;
    return "http://" + host + ":" + std::to_string(endpoint.port());
}

/// Adds the address for checkout links, which is that of the listening socket when the operator names none.
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

Server::AccessLog accessLog(Metrics &metrics, const bool &written)
{
    return [&metrics, &written](const AccessRecord &record) {
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
      m_hangups(m_io, SIGHUP),
      m_again(settings.again),
      m_engine(settings.engine),
      m_accessLog(settings.accessLog),
      m_store(withFolder(settings.database), settings.grants, systemClock()),
      m_transcriber(std::move(engine), longestRecording, settings.engineQueue),
      m_acceptor(listen(m_io, settings.endpoint)),
      m_url(urlOf(m_acceptor.local_endpoint())),
      m_api(reachedAt(m_acceptor.local_endpoint(), settings.api), m_store, m_transcriber, systemClock()),
      m_server(std::move(m_acceptor), m_api, settings.server, accessLog(m_api.metrics(), m_accessLog))
{
    // What is written to a log that nobody reads any more, or to a full disk, fails and does not kill.
    for (const auto signal : {SIGPIPE, SIGXFSZ}) {
        std::signal(signal, SIG_IGN);
    }
    allowManyConnections();
    m_api.countConnections([this] { return m_server.connections(); });
    if (settings.monitor) {
        m_monitor.emplace(bound(m_io, *settings.monitor), m_api.monitor(), ServerOptions{.connectionsPerAddress = 0},
                          [](const AccessRecord &) {});
    }
}

bool Backend::run()
{
    m_signals.async_wait([this](const boost::system::error_code &error, int) {
        if (!error) {
            m_signals.clear();
            m_hangups.cancel(); // which goes on being caught
            sd_notify(0, "STOPPING=1");
            m_transcriber.stop();
            if (m_monitor) {
                m_monitor->stop();
            }
            m_server.stop([this] {
                m_gaveUp = true;
                m_io.stop();
            });
        }
    });
    awaitReload();
    m_server.start();
    if (m_monitor) {
        m_monitor->start();
    }
    sd_notify(0, "READY=1");
    m_io.run();
    return !m_gaveUp;
}

void Backend::awaitReload()
{
    m_hangups.async_wait([this](const boost::system::error_code &error, int) {
        if (!error) {
            reload();
            awaitReload();
        }
    });
}

/// Leaves everything as it is when the new settings are wrong.
void Backend::reload()
{
    try {
        const auto settings = m_again();
        if (settings.engine == m_engine && settings.engine != Settings::EngineKind::PocketSphinx) {
            m_transcriber.replaceEngine(makeEngine(settings));
        }
        m_api.reload(settings.api);
        m_accessLog = settings.accessLog;
        logLine("the settings were read anew");
    } catch (const std::exception &error) {
        logLine(std::string("the settings stay as they were: ") + error.what());
    }
}
