// SPDX-License-Identifier: MIT
#include "Panel.h"
#include "WindowTray.h"
#include "e2e/Desktop.h"
#include "support/Await.h"
#include "support/Printing.h"

#include <QDBusConnection>
#include <QDir>
#include <QFile>
#include <QObject>

#include <algorithm>
#include <array>
#include <gmock/gmock.h>
#include <linux/input-event-codes.h>
#include <memory>

using namespace Qt::StringLiterals;

using Outcome = Desktop::Outcome;

void PrintTo(const Outcome &outcome, std::ostream *out)
{
    *out << outcome.status << " \"" << outcome.output.toStdString() << "\" \"" << outcome.errors.toStdString() << '"';
}

namespace {

const Outcome done{0, {}, {}};

Outcome failure(int status, const QString &sentence)
{
    return {status, {}, u"quillo: "_s + sentence + u'\n'};
}

constexpr auto controlAlt = XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1;

/// Another program that hears of every change of the state.
class Listener : public QObject {
    Q_OBJECT

public:
    explicit Listener(const Session &session)
        : m_bus(QDBusConnection::connectToBus(session.busAddress(), session.busAddress()))
    {
        m_bus.connect(u"app.quillo.Quillo"_s, u"/app/quillo/Quillo"_s, u"app.quillo.Quillo1"_s, u"StateChanged"_s, this,
                      SLOT(append(QString)));
    }
    ~Listener() override { QDBusConnection::disconnectFromBus(m_bus.name()); }

    QStringList states;

private Q_SLOTS:
    void append(const QString &state) { states.append(state); }

private:
    QDBusConnection m_bus;
};

void addGroup(const Desktop &desktop)
{
    const QString folder = desktop.session().dataFolder() + u"/Quillo"_s;
    ASSERT_TRUE(QDir().mkpath(folder));
    QFile file(folder + u"/groups.json"_s);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(R"([{"id":"A","name":"Work","kind":"folder"}])");
}

QStringList labels(const DBusMenuLayout &menu)
{
    QStringList labels;
    for (const DBusMenuLayout &item : menu.children) {
        labels.append(item.values.value(u"label"_s).toString());
    }
    return labels;
}

} // namespace

TEST(CommandsTest, TheRunningProgramDoesWhatTheyName)
{
    Desktop desktop({.hasEditor = false, .isStarted = false});
    addGroup(desktop);
    desktop.start();
    const Listener listener(desktop.session());

    const struct {
        QStringList commands;
        QString key;
        QJsonValue value;
    } steps[] = {
        {{u"press"_s, u"press"_s}, u"state"_s, u"recording"_s},
        {{u"cancel"_s, u"cancel"_s, u"release"_s}, u"state"_s, u"idle"_s},
        {{u"toggle"_s, u"release"_s}, u"state"_s, u"recording"_s},
        {{u"cancel"_s}, u"state"_s, u"idle"_s},
        {{u"press"_s, u"toggle"_s, u"release"_s}, u"state"_s, u"recording"_s}, // hands-free: no hold to end
        {{u"press"_s}, u"state"_s, u"idle"_s},
        {{u"history"_s, u"history"_s}, u"historyVisible"_s, true},
        {{u"next-group"_s}, u"group"_s, u"Work"_s},
        {{u"next-group"_s}, u"group"_s, QJsonValue(QJsonValue::Undefined)},
    };
    for (const auto &[commands, key, value] : steps) {
        for (const QString &command : commands) {
            EXPECT_EQ(desktop.command({command}), done) << command.toStdString();
        }
        EXPECT_TRUE(desktop.awaitStatus(key, value)) << commands.join(u' ').toStdString();
    }
    const QStringList sequence{u"recording"_s, u"idle"_s, u"recording"_s, u"idle"_s, u"recording"_s};
    EXPECT_TRUE(await([&] { return listener.states.size() > 5 && listener.states.last() == u"idle"; }));
    EXPECT_EQ(listener.states.first(5), sequence) << listener.states.join(u' ').toStdString();

    QProcessEnvironment elsewhere = desktop.environment();
    elsewhere.remove(u"DISPLAY"_s); // the instance that runs is reopened from where none could be started
    EXPECT_EQ(run(QStringLiteral(QUILLO_PROGRAM), {}, elsewhere), QByteArray());
    EXPECT_EQ(desktop.command({u"edit-groups"_s}), done);
    EXPECT_EQ(desktop.command({u"settings"_s}), done);
    EXPECT_TRUE(await([&] { return !desktop.windowNamed(u"Quillo Settings"_s).isEmpty(); }));
    EXPECT_TRUE(desktop.command({u"status"_s})
                    .output.startsWith(u"Hold or tap Ctrl+Alt+Space to dictate\nState:         idle\n"));

    EXPECT_EQ(desktop.command({u"quit"_s}), done);
    EXPECT_EQ(desktop.quillo().wait(), 0);
    EXPECT_EQ(desktop.quillo().process().readAllStandardError(), QByteArray());
}

TEST(CommandsTest, WithoutARunningProgramTheySaySoInOneLine)
{
    const Desktop desktop({.hasEditor = false, .isStarted = false});
    for (const QString &command : {u"press"_s, u"release"_s, u"toggle"_s, u"cancel"_s, u"history"_s, u"edit-groups"_s,
                                   u"settings"_s, u"next-group"_s, u"buy-tokens"_s, u"status"_s, u"quit"_s}) {
        EXPECT_EQ(desktop.command({command}), failure(3, u"Quillo isn't running. Start it with: quillo"_s));
    }
    EXPECT_EQ(desktop.command({u"dictate"_s}), failure(2, u"There is no command \"dictate\". See: quillo --help"_s));
}

TEST(CommandsTest, OfSeveralStartsAtOneMomentOneStaysAndShowsItsHistory)
{
    const Desktop desktop({.hasEditor = false, .isStarted = false});
    std::array<std::unique_ptr<ChildProcess>, 3> starts;
    for (auto &start : starts) {
        start = std::make_unique<ChildProcess>(QStringLiteral(QUILLO_PROGRAM), QStringList{}, desktop.environment());
    }
    const auto running = [&starts] {
        return std::ranges::count_if(
            starts, [](const auto &start) { return start->process().state() != QProcess::NotRunning; });
    };
    EXPECT_TRUE(await([&] { return running() == 1; }));
    EXPECT_TRUE(desktop.awaitStatus(u"historyVisible"_s, true));
    EXPECT_EQ(desktop.command({u"quit"_s}), done);
    for (const auto &start : starts) {
        EXPECT_EQ(start->wait(), 0);
        EXPECT_EQ(start->process().readAllStandardError(), QByteArray());
    }
}

TEST(CommandsTest, WithoutASessionBusTheProgramStartsAndSaysWhatIsMissing)
{
    Desktop desktop({.hasEditor = false, .isStarted = false});
    QProcessEnvironment environment = desktop.environment();
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, u"unix:path=/nowhere"_s);
    ChildProcess program(QStringLiteral(QUILLO_PROGRAM), {}, environment);
    // Its credential is in no keyring, but the device is known to the server.
    EXPECT_TRUE(await([&] { return desktop.tap().count("GET /v1/balance") > 0; }));
    desktop.user().press(KEY_LEFTCTRL);
    desktop.user().press(KEY_LEFTALT);
    desktop.user().tap(KEY_H);
    EXPECT_TRUE(await([&] { return !desktop.windowNamed(u"Quillo"_s).isEmpty(); })) << "the history";

    ChildProcess command(QStringLiteral(QUILLO_PROGRAM), {u"status"_s}, environment);
    EXPECT_EQ(command.wait(), 3);
    EXPECT_EQ(command.process().readAllStandardError().count('\n'), 1);

    program.terminate();
    EXPECT_EQ(program.wait(), 0);
    const QByteArray errors = program.process().readAllStandardError();
    EXPECT_TRUE(errors.startsWith("quillo: There is no session bus: ")) << errors.toStdString();
    EXPECT_EQ(errors.count('\n'), 1) << errors.toStdString();
}

TEST(CommandsTest, AShortcutThatAnotherProgramHoldsIsNamedInStatusAndMenu)
{
    Desktop desktop({.hasEditor = false, .isStarted = false});
    for (const int key : {KEY_SPACE, KEY_G, KEY_H}) {
        ASSERT_TRUE(desktop.user().grabsKey(key, controlAlt));
    }
    Panel panel(Panel::Host::There, desktop.session().busAddress());
    desktop.start();
    const QString dictation = u"Ctrl+Alt+Space is already used by another app. Pick a different shortcut."_s;
    const QString group = u"Ctrl+Alt+G is already in use. Pick a different shortcut."_s;
    const QString history = u"Ctrl+Alt+H is already in use. Pick a different shortcut."_s;
    const QJsonObject status = desktop.status();
    EXPECT_EQ(status[u"shortcutError"_s], dictation);
    EXPECT_EQ(status[u"groupShortcutError"_s], group);
    EXPECT_EQ(status[u"historyShortcutError"_s], history);
    EXPECT_TRUE(
        desktop.command({u"status"_s}).output.endsWith(u'\n' + dictation + u'\n' + group + u'\n' + history + u'\n'));
    EXPECT_TRUE(await([&] { return !panel.items().isEmpty(); }));
    EXPECT_TRUE(labels(panel.menu()).contains(u"⚠\uFE0E "_s + dictation));
}

TEST(TrayTest, APanelShowsTheMenuAndTheGroupOfTheRunningProgram)
{
    Desktop desktop({.hasEditor = false, .isStarted = false});
    addGroup(desktop);
    desktop.start();
    Panel panel(Panel::Host::There, desktop.session().busAddress()); // comes late
    ASSERT_TRUE(await([&] { return !panel.items().isEmpty(); }));
    const auto item = [&panel](const QString &label) {
        const DBusMenuLayout menu = panel.menu();
        const auto place = labels(menu).indexOf(label);
        return place < 0 ? 0 : menu.children[place].id;
    };
    ASSERT_TRUE(await([&] { return item(u"3,600 tokens left"_s) > 0; }))
        << labels(panel.menu()).join(u'|').toStdString();
    panel.choose(item(u"Show History"_s));
    EXPECT_TRUE(await([&] { return item(u"Hide History"_s) > 0; }));
    EXPECT_FALSE(desktop.windowNamed(u"Quillo"_s).isEmpty());

    desktop.command({u"next-group"_s});
    EXPECT_TRUE(await([&] { return item(u"Group: Work"_s) > 0; }));
    const auto title = [&panel] {
        return panel.properties(u"/StatusNotifierItem"_s, u"org.kde.StatusNotifierItem"_s).value(u"Title"_s);
    };
    EXPECT_EQ(title(), u"Quillo: Work"_s);

    panel.choose(item(u"Quit Quillo"_s));
    EXPECT_EQ(desktop.quillo().wait(), 0);
}

TEST(TrayTest, ATrayThatTakesWindowsInHasTheIconWhoseMenuQuits)
{
    Desktop desktop({.hasEditor = false, .isStarted = false});
    const WindowTray tray(desktop.display());
    desktop.start();
    TestClient &user = desktop.user();
    ASSERT_TRUE(await([&] { return WindowTray::hasSymbol(user, WindowTray::dark); }));
    const QPoint symbol = WindowTray::symbol(user, WindowTray::dark).center();
    const QRect menu = user.clickForMenu(symbol.x(), symbol.y());
    ASSERT_FALSE(menu.isEmpty());
    user.click(menu.center().x(), menu.bottom() - 10); // the last item
    EXPECT_EQ(desktop.quillo().wait(), 0);
}

#include "CommandsTest.moc"
