// SPDX-License-Identifier: MIT
#include "support/HttpClient.h"
#include "support/RunningServer.h"

#include <boost/asio/redirect_error.hpp>
#include <gtest/gtest.h>

#include <future>
#include <optional>
#include <thread>

using namespace std::chrono_literals;

namespace {

class TestHandler : public RequestHandler {
public:
    size_t bodyLimit(std::string_view) const override { return 0; }

    net::awaitable<Reply> handle(const Request &request) override
    {
        entered.set_value();
        while (answersWhenTheClientHasGone && request.connected()) {
            std::this_thread::yield();
        }
        if (waits) {
            turn.emplace(co_await net::this_coro::executor, net::steady_timer::time_point::max());
            boost::system::error_code cancelled;
            co_await turn->async_wait(net::redirect_error(net::use_awaitable, cancelled));
            turn.reset(); // before the server's io_context goes
        }
        Reply reply;
        reply.body = body;
        reply.sent = [this](bool delivered) -> net::awaitable<void> {
            undelivered += delivered ? 0 : 1;
            ++sent;
            throw std::runtime_error("the database failed");
            co_return;
        };
        co_return reply;
    }

    bool answersWhenTheClientHasGone = false;
    bool waits = false;
    std::string body;
    std::optional<net::steady_timer> turn;
    std::promise<void> entered;
    int undelivered = 0;
    int sent = 0;
};

class ServerTest : public testing::Test {
protected:
    HttpClient &ask(const ServerOptions &options = {.linger = 20ms})
    {
        server = std::make_unique<RunningServer>(options);
        server->start(handler, [this](const AccessRecord &record) { records.push_back(record); });
        client.emplace(server->port());
        client->write("GET / HTTP/1.1\r\nHost: test\r\nConnection: close\r\n\r\n");
        handler.entered.get_future().wait();
        return *client;
    }

    void expectToldOnce(bool delivered)
    {
        EXPECT_EQ(handler.undelivered, delivered ? 0 : 1);
        EXPECT_EQ(handler.sent, 1);
        ASSERT_EQ(records.size(), 1);
        EXPECT_EQ(records[0].delivered, delivered);
    }

    TestHandler handler;
    std::vector<AccessRecord> records;
    std::unique_ptr<RunningServer> server;
    std::optional<HttpClient> client;
};

} // namespace

TEST_F(ServerTest, TellsOnceThatAReplyWasSentAndRecordsItWhateverComesOfThat)
{
    EXPECT_EQ(ask().receive().status, 200);
    server->stop();
    expectToldOnce(true);
}

TEST_F(ServerTest, TellsOnceThatAReplyCouldNotBeSent)
{
    handler.answersWhenTheClientHasGone = true;
    ask().reset();
    server->stop();
    expectToldOnce(false);
}

TEST_F(ServerTest, GivesUpOnAClientThatReadsNoReply)
{
    handler.body = std::string(64UL * 1024 * 1024, 'x'); // more than the sockets' buffers take
    ask({.stall = 20ms});
    server->stop();
    expectToldOnce(false);
}

TEST_F(ServerTest, RefusesWhatStillRunsAWhileAfterItWasToldToStop)
{
    handler.waits = true;
    ask({.drain = 1ms});
    auto stopped = std::async(std::launch::async, [&] { server->stop(); });
    const auto answer = client->receive();
    EXPECT_EQ(answer.error(), "server_busy");
    EXPECT_GT(std::stoi(answer.retryAfter), 0);
    EXPECT_TRUE(client->isClosedByServer());
    client->close();
    net::post(handler.turn->get_executor(), [&] { handler.turn->cancel(); });
    stopped.get();
    expectToldOnce(false);
}

TEST(NetworkTest, ContainsTheAddressesOfItsBlock)
{
    struct Case {
        const char *network, *inside, *outside;
    };
    for (const auto &[text, inside, outside] :
         {Case{"10.0.0.0/8", "10.255.0.1", "11.0.0.0"}, Case{"192.0.2.128/25", "192.0.2.255", "192.0.2.127"},
          Case{"192.0.2.7", "192.0.2.7", "192.0.2.6"}, Case{"0.0.0.0/0", "255.1.2.3", "::"},
          Case{"2001:db8::/33", "2001:db8:7fff::1", "2001:db8:8000::1"}, Case{"::1", "::1", "::2"}}) {
        const auto network = Network::parse(text);
        ASSERT_TRUE(network) << text;
        EXPECT_TRUE(network->contains(net::ip::make_address(inside))) << text;
        EXPECT_FALSE(network->contains(net::ip::make_address(outside))) << text;
    }
    for (const auto *const text : {"", "10.0.0.0/33", "::/129", "10.0.0.0/", "10.0.0.0/8x", "10.0.0/8", "host"}) {
        EXPECT_FALSE(Network::parse(text)) << text;
    }
}
