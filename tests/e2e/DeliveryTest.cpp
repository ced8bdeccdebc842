// SPDX-License-Identifier: MIT
#include "e2e/Desktop.h"
#include "e2e/PastingWindow.h"
#include "support/Await.h"
#include "support/Printing.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString copied = u"Copied — paste with Ctrl+V (Ctrl+Shift+V in a terminal)"_s;
const QString done = u"Transcribing…"_s; // the last notice before a paste that says nothing

/// Starts the program and hears every notice of it.
class Notices {
public:
    explicit Notices(Desktop &desktop)
        : m_listener(u"/usr/bin/python3"_s, {QStringLiteral(NOTICE_LISTENER)}, desktop.environment())
    {
        // The accessibility bus is there when somebody listens, and the program looks for it once, when it starts. It
        // tells only from the time on when it has heard that somebody listens.
        const bool isListening = await([this] { return m_listener.process().canReadLine(); });
        m_listener.process().readLine();
        desktop.start();
        const bool isHeard = isListening && await([&] {
                                 desktop.command({u"next-group"_s});
                                 return await([this] { return !all().isEmpty(); }, 1s);
                             });
        if (!isHeard) {
            throw std::runtime_error("no notice is heard: " +
                                     m_listener.process().readAllStandardError().toStdString());
        }
    }

    const QStringList &all()
    {
        while (m_listener.process().canReadLine()) {
            m_all.append(QString::fromUtf8(m_listener.process().readLine()).trimmed());
        }
        return m_all;
    }

private:
    ChildProcess m_listener;
    QStringList m_all;
};

/// The real program, a server that answers when the test says so, and a window that notes what is pasted.
class DeliveryTest : public ::testing::Test {
protected:
    DeliveryTest()
    {
        QFile sound(voice);
        EXPECT_TRUE(sound.open(QIODevice::WriteOnly));
        sound.write(QByteArray(rate, '\1')); // half a second
    }

    static HttpServer::Response serve(const HttpServer::Request &request)
    {
        using Response = HttpServer::Response;
        return request.path == "/v1/devices"   ? Response{201, R"({"deviceId":"dev","secret":"s3cret"})"}
               : request.path == "/v1/balance" ? Response{200, R"({"balance":7})"}
                                               : Response{.ending = Response::Ending::Held};
    }

    void press(const std::vector<int> &keys)
    {
        std::ranges::for_each(keys, [this](int key) { user.press(key); });
    }
    void release(const std::vector<int> &keys)
    {
        std::ranges::for_each(keys, [this](int key) { user.release(key); });
    }

    /// Into the microphone, for longer than a tap.
    void speak() const { desktop->sound().play(voice, rate)->wait(); }

    /// With the shortcut held, up to the upload; Ctrl and Alt stay down.
    void dictate()
    {
        press({KEY_LEFTCTRL, KEY_LEFTALT, KEY_SPACE});
        speak();
        release({KEY_SPACE});
        awaitUpload();
    }

    void awaitUpload(qsizetype count = 1)
    {
        ASSERT_TRUE(await([&] { return server.heldCount() == count; })) << "nothing was uploaded";
    }

    void reply(const QByteArray &text)
    {
        ASSERT_GT(server.heldCount(), 0);
        server.answerHeld({200, "{\"balance\":7,\"text\":\"" + text + "\"}"});
    }

    void letGo() { release({KEY_SPACE, KEY_LEFTALT, KEY_LEFTCTRL, KEY_LEFTSHIFT, KEY_V}); }

    void setKeyboard(const QString &options)
    {
        run(u"setxkbmap"_s, {u"us"_s, u"-option"_s, u""_s, u"-option"_s, options}, desktop->environment());
    }

    bool awaitState(const QString &state) { return desktop->awaitStatus(u"state"_s, state); }

    std::unique_ptr<Desktop> makeDesktop()
    {
        server.onRequest = serve;
        auto made =
            std::make_unique<Desktop>(DesktopOptions{.hasEditor = false, .isStarted = false, .server = &server});
        const QString data = made->session().dataFolder() + u"/Quillo"_s;
        EXPECT_TRUE(QDir().mkpath(data));
        QFile groups(data + u"/groups.json"_s);
        EXPECT_TRUE(groups.open(QIODevice::WriteOnly));
        groups.write(R"([{"id":"A","name":"Work","kind":"folder"}])"); // so that a change of group is another notice
        groups.close();
        return made;
    }

    static constexpr int rate = 16000;
    QTemporaryDir folder;
    QString voice = folder.filePath(u"voice.raw"_s);
    HttpServer server;
    std::unique_ptr<Desktop> desktop = makeDesktop();
    TestClient &user = desktop->user();
    PastingWindow window{desktop->display()};
    Notices notices{*desktop};
};

} // namespace

TEST_F(DeliveryTest, WhatWasSaidArrivesOnceInOrderOrIsSaidToBeCopied)
{
    struct Scenario {
        const char *what;
        std::function<void()> happens;
        QStringList pasted;
        QByteArray clipboard;
        QString lastNotice;
    };
    const Scenario scenarios[] = {
        {"one dictation", [this] { dictate(), letGo(), reply("one"); }, {u"one"_s}, "earlier", done},
        {"the next begins with Ctrl and Alt still down, before the paste",
         [this] {
             dictate();
             reply("one");
             EXPECT_TRUE(desktop->awaitClipboard("one")); // it waits for the two to go up
             press({KEY_SPACE});
             speak();
             EXPECT_EQ(window.pasted, QStringList());
             release({KEY_SPACE});
             awaitUpload();
             letGo();
             reply("two");
         },
         {u"one"_s, u"two"_s},
         "earlier",
         done},
        {"the Space that ends a dictation is still down when the reply comes",
         [this] {
             press({KEY_LEFTCTRL, KEY_LEFTALT, KEY_SPACE});
             letGo();
             speak();
             press({KEY_LEFTCTRL, KEY_LEFTALT, KEY_SPACE});
             release({KEY_LEFTALT, KEY_LEFTCTRL});
             awaitUpload();
             reply("one");
             EXPECT_TRUE(awaitState(u"idle"_s));
             EXPECT_EQ(window.pastes, 0);
             letGo();
         },
         {u"one"_s},
         "earlier",
         done},
        {"another program copies while a modifier holds the paste up",
         [this] {
             dictate();
             letGo();
             press({KEY_LEFTSHIFT});
             reply("one");
             EXPECT_TRUE(desktop->awaitClipboard("one"));
             desktop->setClipboard("newer");
             letGo();
         },
         {u"one"_s},
         "newer",
         done},
        {"the program in front is slow",
         [this] {
             window.delay = 1500ms;
             dictate(), letGo(), reply("one");
         },
         {u"one"_s},
         "earlier",
         done},
        {"the program in front does not paste",
         [this] {
             window.delay = -1ms;
             dictate(), letGo(), reply("one");
         },
         {},
         "one",
         copied},
        {"nothing has the focus",
         [this] {
             dictate(), letGo();
             window.hide();
             reply("one");
         },
         {},
         "one",
         copied},
        {"another program has the keyboard",
         [this] {
             dictate(), letGo();
             xcb_grab_keyboard_unchecked(user.xcb(), 0, user.root(), XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC,
                                         XCB_GRAB_MODE_ASYNC);
             user.sync();
             reply("one");
         },
         {},
         "one",
         copied},
        {"the user leans on the V", [this] { dictate(), letGo(), press({KEY_V}), reply("one"); }, {}, "one", copied},
        {"Esc with the shortcut held",
         [this] {
             press({KEY_LEFTCTRL, KEY_LEFTALT, KEY_SPACE});
             EXPECT_TRUE(awaitState(u"recording"_s));
             user.tap(KEY_ESC);
         },
         {},
         "earlier",
         u"Cancelled"_s},
        {"Esc on the Caps Lock key",
         [this] {
             setKeyboard(u"caps:escape"_s);
             press({KEY_LEFTCTRL, KEY_LEFTALT, KEY_SPACE});
             letGo();
             EXPECT_TRUE(awaitState(u"recording"_s));
             user.tap(KEY_CAPSLOCK);
         },
         {},
         "earlier",
         u"Cancelled"_s},
        {"no microphone",
         [this] {
             desktop->sound().removeMicrophone();
             const auto isNoticed = [this] {
                 press({KEY_LEFTCTRL, KEY_LEFTALT, KEY_SPACE});
                 letGo();
                 return await([this] { return notices.all().last() == u"There is no microphone. Plug one in."_s; }, 1s);
             };
             EXPECT_TRUE(await(isNoticed));
             desktop->sound().addMicrophone();
         },
         {},
         "earlier",
         u"There is no microphone. Plug one in."_s},
        {"the microphone is back", [this] { dictate(), letGo(), reply("one"); }, {u"one"_s}, "earlier", done},
    };
    for (const Scenario &scenario : scenarios) {
        SCOPED_TRACE(scenario.what);
        desktop->setClipboard("earlier");
        window.pasted.clear();
        window.pastes = 0;
        window.delay = 0ms;
        window.show();
        scenario.happens();
        EXPECT_TRUE(await([&] { return window.pasted == scenario.pasted; })) << window.pasted.join(u'|').toStdString();
        EXPECT_TRUE(await([&] { return notices.all().last() == scenario.lastNotice; }))
            << notices.all().last().toStdString();
        EXPECT_TRUE(desktop->awaitClipboard(scenario.clipboard)) << desktop->clipboard().toStdString();
        EXPECT_EQ(window.pasted, scenario.pasted);
        EXPECT_TRUE(awaitState(u"idle"_s));
        letGo();
        xcb_ungrab_keyboard(user.xcb(), XCB_CURRENT_TIME);
        setKeyboard({});
    }
    EXPECT_EQ(desktop->command({u"quit"_s}).status, 0);
}

TEST_F(DeliveryTest, ATerminalIsPastedIntoAndAPictureIsBackOnTheClipboard)
{
    const QString typed = folder.filePath(u"typed"_s);
    const QString picture = folder.filePath(u"picture.png"_s);
    QFile file(picture);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArrayLiteral("\x89PNG\r\n\x1a\n\0\xff").repeated(10'000));
    file.close();
    const QStringList clipboard{u"-selection"_s, u"clipboard"_s, u"-target"_s, u"image/png"_s};
    run(u"xclip"_s, clipboard + QStringList{u"-in"_s, picture}, desktop->environment());
    const auto isBack = [&] {
        ChildProcess reading(u"xclip"_s, clipboard + QStringList{u"-out"_s}, desktop->environment());
        reading.wait(); // fails while the clipboard holds the text
        return reading.process().readAllStandardOutput().size() == 100'000;
    };
    ASSERT_TRUE(await(isBack)); // small enough to be sent at once: xclip serves one reader in parts at a time
    const ChildProcess terminal(
        u"xterm"_s,
        {u"-u8"_s, u"-xrm"_s, u"XTerm*VT100.translations: #override Ctrl Shift <Key>V: insert-selection(CLIPBOARD)"_s,
         u"-e"_s, u"sh"_s, u"-c"_s, u"read -r line; printf %s \"$line\" > \"$0.part\"; mv \"$0.part\" \"$0\""_s, typed},
        desktop->environment());
    run(u"xdotool"_s,
        {u"search"_s, u"--sync"_s, u"--onlyvisible"_s, u"--class"_s, u"xterm"_s, u"windowactivate"_s, u"--sync"_s},
        desktop->environment());
    dictate(), letGo(), reply("Grüße, ça va? 日本 – „ok“");
    EXPECT_TRUE(desktop->awaitClipboard("Grüße, ça va? 日本 – „ok“"));
    EXPECT_TRUE(await(isBack));
    user.tap(KEY_ENTER);
    QByteArray line;
    await([&] {
        QFile result(typed);
        line = result.open(QIODevice::ReadOnly) ? result.readAll() : QByteArray();
        return !line.isEmpty();
    });
    EXPECT_EQ(line, "Grüße, ça va? 日本 – „ok“");
}
