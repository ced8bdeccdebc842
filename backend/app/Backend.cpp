// SPDX-License-Identifier: MIT
#include "app/Backend.h"

#include "engine/PocketSphinxEngine.h"
#include "support/Log.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <csignal>

namespace {

// The desktop program stops recording after 15 minutes.
constexpr std::chrono::minutes longestRecording{20};

QString withFolder(const QString &database)
{
    const QDir folder(QFileInfo(database).absolutePath());
    if (!folder.exists()) {
        QDir().mkpath(folder.path());
        QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    return database;
}

std::unique_ptr<Engine> makeEngine(const Settings &settings)
{
    switch (settings.engine) {
    case Settings::EngineKind::OpenAi:
        return std::make_unique<OpenAiEngine>(settings.openAi);
    case Settings::EngineKind::PocketSphinx:
        break;
    }
    return std::make_unique<PocketSphinxEngine>(PocketSphinxEngine::defaultModelFolder());
}

net::ip::tcp::acceptor listen(net::io_context &io, const net::ip::tcp::endpoint &endpoint)
{
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

ApiOptions withPublicUrl(ApiOptions options, const std::string &url)
{
    if (options.publicUrl.empty()) {
        options.publicUrl = url;
    }
    return options;
}

void logAccess(const AccessRecord &record)
{
    logLine(record.method + " " + record.route + " " + std::to_string(record.status) + " " +
            std::to_string(record.duration.count()) + " ms");
}

} // namespace

Backend::Backend(const Settings &settings)
    : m_signals(m_io, SIGTERM, SIGINT),
      m_store(withFolder(settings.database), settings.grants, [] { return QDateTime::currentSecsSinceEpoch(); }),
      m_transcriber(makeEngine(settings), longestRecording),
      m_acceptor(listen(m_io, settings.endpoint)),
      m_url(urlOf(m_acceptor.local_endpoint())),
      m_api(withPublicUrl(settings.api, m_url), m_store, m_transcriber),
      m_server(
          std::move(m_acceptor), m_api, {}, settings.verbose ? logAccess : [](const AccessRecord &) {})
{
}

void Backend::run()
{
    m_signals.async_wait([this](const boost::system::error_code &error, int) {
        if (!error) {
            m_signals.clear();
            m_server.stop();
        }
    });
    m_server.start();
    m_io.run();
}
