// SPDX-License-Identifier: MIT
#include "store/StoreThreads.h"
#include "support/Audio.h"
#include "support/RunningServer.h"
#include "support/ServerProgram.h"
#include "support/TestDatabase.h"

#include <gmock/gmock.h>

#include <condition_variable>
#include <csignal>
#include <mutex>
#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 price = 2; // of tone()
constexpr int clients = 3;

/// Stands in for the transcription server, and does something at one of its requests.
class Upstream : public RequestHandler {
public:
    size_t bodyLimit(std::string_view) const override { return 1'000'000; }
    net::awaitable<Reply> handle(const Request &) override
    {
        if (--left == 0) {
            atLast();
        }
        Reply reply;
        reply.body = R"({"text":"hello"})";
        co_return reply;
    }

    std::atomic<int> left = 0;
    std::function<void()> atLast;
};

class MeteringTest : public testing::TestWithParam<DatabaseKind> {
protected:
    void SetUp() override
    {
        qputenv("no_proxy", "127.0.0.1");
        upstreamServer.start(upstream);
    }

    std::unique_ptr<ServerProgram> start() const
    {
        return std::make_unique<ServerProgram>(
            QStringList{u"--database"_s, database.location(), u"--engine=openai"_s, u"--registrations-per-hour=0"_s,
                        u"--free-tokens=100"_s, u"--openai-base-url"_s, QString::fromStdString(upstreamServer.url())});
    }

    static HttpAnswer transcribe(uint16_t port, const std::string &device)
    {
        return HttpClient(port).send("POST", "/v1/transcribe", device + std::string(multipartHeader),
                                     multipart(tone()));
    }

    static QString idOf(const std::string &device)
    {
        const auto start = device.find("Bearer ") + 7;
        return QString::fromStdString(device.substr(start, device.find('.', start) - start));
    }

    TestDatabase database{GetParam()};
    Upstream upstream;
    RunningServer upstreamServer;
};

INSTANTIATE_ON_BOTH_DATABASES(MeteringTest);

} // namespace

TEST_P(MeteringTest, ChargesWhatWasDeliveredAndNothingElseHoweverOftenItIsKilled)
{
    constexpr int rounds = 8;
    const auto seed = std::random_device{}();
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    auto server = start();
    std::vector<std::string> devices(clients);
    std::vector<int> delivered(clients, 0);
    for (auto &device : devices) {
        device = registeredAt(server->port());
    }
    for (int round = 0; round < rounds; ++round) {
        // Some milliseconds after that request has come in, it is anywhere between the engine and the reply.
        const auto delay = std::chrono::microseconds(std::uniform_int_distribution(0, 4000)(random));
        const auto process = static_cast<pid_t>(server->pid());
        std::jthread killer;
        upstream.atLast = [&] {
            killer = std::jthread([=] {
                std::this_thread::sleep_for(delay);
                ::kill(process, SIGKILL);
            });
        };
        upstream.left = std::uniform_int_distribution(1, 6)(random);
        std::vector<std::jthread> threads;
        for (size_t i = 0; i < devices.size(); ++i) {
            threads.emplace_back([&, i] {
                try {
                    while (transcribe(server->port(), devices[i]).status == 200) {
                        ++delivered[i];
                    }
                } catch (const boost::system::system_error &) {
                    // The connection ended with the process.
                }
            });
        }
        threads.clear();
        server = start();
    }
    Store store(database.location(), {}, systemClock());
    EXPECT_THAT(store.ledger.unexplained(), testing::IsEmpty());
    for (size_t i = 0; i < devices.size(); ++i) {
        const auto charged = (100 - store.devices.find(idOf(devices[i]))->balance) / price;
        EXPECT_LE(charged, delivered[i]);
        EXPECT_GE(charged, delivered[i] - rounds); // at most the one that was under way at each end
    }
}

TEST_P(MeteringTest, NeverOverdrawsADeviceOfSeveralProcesses)
{
    constexpr int affordable = 50;
    constexpr int threadsEach = 2;
    const auto first = start();
    const auto second = start();
    const auto device = registeredAt(first->port());
    std::atomic<int> delivered = 0;
    std::atomic<unsigned> other = 0; ///< status
    std::vector<std::jthread> threads;
    for (const auto port : {first->port(), second->port()}) {
        for (int i = 0; i < threadsEach; ++i) {
            threads.emplace_back([&, port] {
                for (;;) {
                    const auto status = transcribe(port, device).status;
                    delivered += status == 200 ? 1 : 0;
                    if (status != 200 && status != 402) {
                        other = status;
                    }
                    if (delivered >= affordable || other != 0) {
                        return;
                    }
                }
            });
        }
    }
    threads.clear();
    EXPECT_EQ(other, 0);
    EXPECT_EQ(delivered, affordable);
    EXPECT_EQ(transcribe(second->port(), device).error(), "insufficient_tokens");
    EXPECT_EQ(first->stop(), 0);
    EXPECT_EQ(second->stop(), 0);
    Store store(database.location(), {}, systemClock());
    EXPECT_EQ(store.devices.find(idOf(device))->balance, 0);
    EXPECT_EQ(store.ledger.entries(idOf(device), 0, 1000).size(), affordable + 1);
}
