// SPDX-License-Identifier: MIT
#pragma once

#include "TestClient.h"
#include "platform/x11/connection/X11Connection.h"
#include "platform/x11/keys/X11Keymap.h"
#include "support/VirtualDisplay.h"

#include <QCoreApplication>

#include <gmock/gmock.h>
#include <linux/input-event-codes.h>

/// Counts the events of one type that a connection gets.
class EventCounter final : private X11Listener {
public:
    EventCounter(X11Connection &connection, uint8_t type) : X11Listener(connection), m_type(type) {}

    int count() const { return m_count; }

private:
    void handle(const xcb_generic_event_t &event) override { m_count += eventType(event) == m_type ? 1 : 0; }

    uint8_t m_type;
    int m_count = 0;
};

/// A display with the program's connection and another client that stands for the user.
class X11Fixture : public testing::Test {
protected:
    /// Everything that happened on the display until now has reached the listeners.
    void settle()
    {
        user.sync();
        connection->takeArrived([](const auto &) { return false; });
        QCoreApplication::processEvents();
    }

    void setLayout(const QString &layouts, const QString &variants = {}, const QString &options = {})
    {
        run(QStringLiteral("setxkbmap"),
            {QStringLiteral("-layout"), layouts, QStringLiteral("-variant"), variants, QStringLiteral("-option"),
             QString(), QStringLiteral("-option"), options},
            display.environment());
    }

    VirtualDisplay display;
    TestClient user{display};
    std::unique_ptr<X11Connection> connection = X11Connection::create(display.name());
    std::unique_ptr<X11Keymap> keymap = X11Keymap::create(*connection);
};
