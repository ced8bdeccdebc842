// SPDX-License-Identifier: MIT
#include "support/HttpClient.h"
#include "support/RunningServer.h"

#include <gtest/gtest.h>

#include <future>
#include <thread>

namespace {

/// Answers when its client has gone.
class LateHandler : public RequestHandler {
public:
    size_t bodyLimit(std::string_view) const override { return 0; }

    net::awaitable<Reply> handle(const Request &request) override
    {
        entered.set_value();
        while (request.connected()) {
            std::this_thread::yield();
        }
        Reply reply;
        reply.sent = [this](bool delivered) -> net::awaitable<void> {
            undelivered += delivered ? 0 : 1;
            ++sent;
            co_return;
        };
        co_return reply;
    }

    std::promise<void> entered;
    int undelivered = 0;
    int sent = 0;
};

} // namespace

TEST(ServerTest, TellsOnceThatAReplyCouldNotBeSent)
{
    LateHandler handler;
    RunningServer server;
    server.start(handler);
    HttpClient client(server.port());
    client.write("GET / HTTP/1.1\r\nHost: test\r\n\r\n");
    handler.entered.get_future().wait();
    client.reset();
    server.stop();
    EXPECT_EQ(handler.undelivered, 1);
    EXPECT_EQ(handler.sent, 1);
}
