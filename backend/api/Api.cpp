// SPDX-License-Identifier: MIT
#include "api/Api.h"

#include "support/Log.h"

#include <QJsonObject>
#include <boost/asio/detached.hpp>
#include <boost/asio/redirect_error.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/asio/this_coro.hpp>

#include <memory>

using namespace Qt::StringLiterals;

Api::Api(const ApiOptions &options, StoreThreads &store, Transcriber &transcriber, const WallClock &clock)
    : m_databaseCheck(options.databaseCheck),
      m_store(store),
      m_transcriber(transcriber),
      m_devices(store, options.registrationsPerHour),
      m_transcription(options.transcription, store, transcriber, m_metrics),
      m_checkout(options.checkout, store, clock)
{
    m_devices.addTo(m_router);
    m_transcription.addTo(m_router);
    m_checkout.addTo(m_router);
    m_router.add("GET", "/healthz", [this](const Request &request) { return health(request); });
    m_router.add("GET", "/metrics", [this](const Request &request) { return showMetrics(request); });
}

/// Does not wait for longer than the limit, though the question itself may.
net::awaitable<bool> Api::databaseAnswers()
{
    struct Question {
        net::steady_timer end;
        bool isAnswered = false;
    };
    const auto executor = co_await net::this_coro::executor;
    const auto question = std::make_shared<Question>(Question{{executor, m_databaseCheck}});
    const auto ask = [](StoreThreads &stores, std::shared_ptr<Question> asked) -> net::awaitable<void> {
        try {
            asked->isAnswered =
                co_await stores.run([](Store &store) { return store.database.first(u"SELECT 1"_s).has_value(); });
        } catch (const StoreError &error) {
            logLine(error.what());
        }
        asked->end.cancel();
    };
    net::co_spawn(executor, ask(m_store, question), net::detached);
    boost::system::error_code cancelled;
    co_await question->end.async_wait(net::redirect_error(net::use_awaitable, cancelled));
    co_return question->isAnswered;
}

net::awaitable<Reply> Api::health(const Request &)
{
    const auto database = co_await databaseAnswers() ? u"ok"_s : u"failed"_s;
    const auto state = m_transcriber.state();
    const auto engine = state == Transcriber::State::Ready     ? u"ok"_s
                        : state == Transcriber::State::Loading ? u"loading"_s
                                                               : u"failed"_s;
    const auto isHealthy = database == u"ok"_s && state == Transcriber::State::Ready;
    co_return jsonReply(
        {{u"status"_s, isHealthy ? u"ok"_s : u"unavailable"_s}, {u"database"_s, database}, {u"engine"_s, engine}},
        isHealthy ? 200 : 503);
}

net::awaitable<Reply> Api::showMetrics(const Request &)
{
    Reply reply;
    reply.contentType = "text/plain; version=0.0.4; charset=utf-8";
    reply.body = m_metrics.text(m_connections(), m_transcriber.placesTaken());
    co_return reply;
}
