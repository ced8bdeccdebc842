// SPDX-License-Identifier: MIT
#pragma once

#include "TestClient.h"
#include "output/TextInserter.h"
#include "platform/freedesktop/SystemClock.h"
#include "platform/x11/clipboard/X11Pasteboard.h"
#include "platform/x11/keys/X11Accessibility.h"
#include "platform/x11/keys/X11KeyEvents.h"
#include "platform/x11/windows/TerminalClasses.h"
#include "support/Await.h"
#include "support/Session.h"
#include "support/VirtualDisplay.h"

#include <QFile>

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>
#include <xcb/xinput.h>

/// The text inserter on a desktop of its own, with the real pasteboard, keys and clock.
class InserterFixture : public ::testing::Test {
protected:
    using Outcome = TextInserter::Outcome;

    /// Starts a program and waits until its window has the keyboard focus.
    void start(const QString &program, const QStringList &arguments)
    {
        QProcessEnvironment environment = session.environment(display.environment());
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        environment.insert(QStringLiteral("NO_AT_BRIDGE"), QStringLiteral("1")); // it needs no accessibility bus
        client = std::make_unique<ChildProcess>(program, arguments, environment);
        const QByteArray found =
            run(QStringLiteral("xdotool"),
                {QStringLiteral("search"), QStringLiteral("--sync"), QStringLiteral("--onlyvisible"),
                 QStringLiteral("--class"), program, QStringLiteral("windowactivate"), QStringLiteral("--sync"),
                 QStringLiteral("getactivewindow")},
                environment);
        window = found.trimmed().split('\n').last().toUInt();
        ASSERT_NE(window, noWindow);
    }

    void startEditor()
    {
        QFile(path).open(QIODevice::WriteOnly);
        start(QStringLiteral("mousepad"), {QStringLiteral("--disable-server"), path});
    }

    /// Saves and returns what the editor holds. It may take the keystroke before it has got the text, so it is asked
    /// again until there is some.
    QString editorText()
    {
        QString text;
        for (int tries = 0; text.isEmpty() && tries < 40; ++tries) {
            user.press(KEY_LEFTCTRL);
            user.tap(KEY_S);
            user.release(KEY_LEFTCTRL);
            text = awaitText(std::chrono::milliseconds(500));
        }
        return text;
    }

    /// What a program writes to the file.
    QString awaitText(std::chrono::milliseconds limit = std::chrono::seconds(20)) const
    {
        QByteArray text;
        await(
            [&] {
                QFile file(path);
                text = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
                return !text.isEmpty();
            },
            limit);
        return QString::fromUtf8(text);
    }

    /// Begins an insert; it goes on while events are waited for.
    void begin(const QString &text)
    {
        insertion = [](TextInserter &inserts, QString inserted, std::optional<Outcome> &ended) -> QCoro::Task<void> {
            ended = co_await inserts.insert(inserted);
        }(inserter, text, outcome);
    }

    void end()
    {
        ASSERT_TRUE(await([this] { return outcome.has_value(); }));
        EXPECT_EQ(*outcome, Outcome::Pasted);
    }

    /// From here on the user's connection is told every key on the display.
    void watchKeys()
    {
        const XcbPtr<xcb_input_xi_query_version_reply_t> version(
            xcb_input_xi_query_version_reply(user.xcb(), xcb_input_xi_query_version(user.xcb(), 2, 2), nullptr));
        const struct {
            xcb_input_event_mask_t head{XCB_INPUT_DEVICE_ALL_MASTER, 1};
            uint32_t mask = XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS | XCB_INPUT_XI_EVENT_MASK_RAW_KEY_RELEASE;
        } rawKeys;
        xcb_input_xi_select_events(user.xcb(), user.root(), 1, &rawKeys.head);
        user.sync();
    }

    /// The server's time of the next such event; those before it are dropped. Nothing when none comes.
    std::optional<xcb_timestamp_t> awaitKey(uint16_t type, int evdevCode)
    {
        const auto event = user.next([&](const xcb_generic_event_t &candidate) {
            const auto &key = eventAs<xcb_input_raw_key_press_event_t>(candidate);
            return eventType(candidate) == XCB_GE_GENERIC && key.event_type == type &&
                   key.detail == uint32_t(evdevCode) + 8;
        });
        return event ? std::optional(eventAs<xcb_input_raw_key_press_event_t>(*event).time) : std::nullopt;
    }

    VirtualDisplay display{VirtualDisplay::WindowManager::Openbox};
    Session session{Session::Keyring::None};
    TestClient user{display};
    SystemClock clock;
    std::unique_ptr<X11Connection> connection = X11Connection::create(display.name());
    std::unique_ptr<X11Keymap> keymap = X11Keymap::create(*connection);
    X11KeyEvents keyEvents{*connection, *keymap, TerminalClasses::defaults()};
    X11Accessibility accessibility{*connection};
    std::unique_ptr<X11Pasteboard> pasteboard = X11Pasteboard::create(clock, display.name());
    TextInserter inserter{*pasteboard, keyEvents, accessibility, clock};
    /// Two other programs that use the clipboard.
    std::unique_ptr<X11Pasteboard> copying = X11Pasteboard::create(clock, display.name());
    std::unique_ptr<X11Pasteboard> reading = X11Pasteboard::create(clock, display.name());

    QString path = session.path(QStringLiteral("note.txt"));
    std::unique_ptr<ChildProcess> client;
    xcb_window_t window = noWindow;
    std::optional<Outcome> outcome;
    QCoro::Task<void> insertion;
};
