// SPDX-License-Identifier: MIT
#include "platform/tray/TrayItem.h"
#include "FakeClock.h"
#include "Panel.h"
#include "platform/KeyCodes.h"
#include "platform/tray/StatusNotifierItem.h"
#include "platform/tray/examineTray.h"
#include "support/Await.h"
#include "support/Printing.h"
#include "support/Session.h"

#include <QApplication>
#include <QSet>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class TrayItemTest : public testing::Test {
protected:
    TrayItemTest() { item.setLabel(u"waveform"_s, {}); }
    ~TrayItemTest() override { QDBusConnection::disconnectFromBus(bus.name()); }

    bool awaitItem(const Panel &panel)
    {
        return await([&] { return panel.items().contains(bus.baseService()); });
    }

    static QVariantMap shown(Panel &panel)
    {
        return panel.properties(u"/StatusNotifierItem"_s, u"org.kde.StatusNotifierItem"_s);
    }

    /// A menu with one of every kind; its actions note what was chosen.
    QList<MenuItem> menu(const QString &status, bool isFirstChecked)
    {
        using Kind = MenuItem::Kind;
        const auto note = [this](const QString &what) { return [this, what] { chosen.append(what); }; };
        return {
            {.kind = Kind::Text, .title = status},
            {.kind = Kind::Separator},
            {.kind = Kind::Submenu,
             .title = u"Group: All_entries"_s,
             .children =
                 {{.kind = Kind::Choice, .title = u"one"_s, .action = note(u"one"_s), .isChecked = isFirstChecked},
                  {.kind = Kind::Choice, .title = u"two"_s, .action = note(u"two"_s), .isChecked = !isFirstChecked}}},
            {.kind = Kind::Button,
             .title = u"Quit"_s,
             .action = note(u"quit"_s),
             .shortcut = MenuShortcut{u","_s, HotKeyModifier::control | HotKeyModifier::command}},
            {.kind = Kind::Button, .title = u"Copy"_s, .action = note(u"copy"_s), .isEnabled = false},
        };
    }

    FakeClock clock;
    QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"item"_s);
    TrayItem item{clock, bus};
    QStringList chosen;
};

} // namespace

TEST_F(TrayItemTest, RegistersWithEveryPanelThatComes)
{
    {
        Panel late;
        EXPECT_TRUE(awaitItem(late));
    }
    auto restarted = std::make_unique<Panel>();
    EXPECT_TRUE(awaitItem(*restarted));
    Panel waiting; // takes the name over without a moment in which nobody has it
    restarted.reset();
    EXPECT_TRUE(awaitItem(waiting));
}

TEST_F(TrayItemTest, TellsThePanelWhatToShow)
{
    Panel panel;
    ASSERT_TRUE(awaitItem(panel));
    EXPECT_EQ(shown(panel).value(u"Title"_s), u"Quillo"_s);

    item.setLabel(u"waveform"_s, u"Meeting notes"_s);
    EXPECT_TRUE(await([&] { return shown(panel).value(u"Title"_s) == u"Quillo: Meeting notes"_s; }));
    const QVariantMap properties = shown(panel);
    EXPECT_EQ(properties.value(u"XAyatanaLabel"_s), u"Meeting notes"_s);
    EXPECT_EQ(qdbus_cast<StatusNotifierToolTip>(properties.value(u"ToolTip"_s)).title, u"Quillo: Meeting notes"_s);
    EXPECT_EQ(properties.value(u"Status"_s), u"Active"_s);
    EXPECT_EQ(properties.value(u"Id"_s), u"app.quillo.Quillo"_s);
    EXPECT_TRUE(properties.value(u"ItemIsMenu"_s).toBool());
    EXPECT_EQ(qdbus_cast<QDBusObjectPath>(properties.value(u"Menu"_s)).path(), u"/MenuBar"_s);
    const QStringList expected{u"NewIcon"_s, u"NewTitle"_s, u"NewToolTip"_s, u"XAyatanaNewLabel"_s};
    EXPECT_EQ(panel.takeSignals(), expected);

    panel.call(u"/StatusNotifierItem"_s, u"org.kde.StatusNotifierItem"_s, u"Activate"_s, {0, 0}); // nobody listens yet
    item.setActivationHandler([this] { chosen.append(u"activated"_s); });
    panel.call(u"/StatusNotifierItem"_s, u"org.kde.StatusNotifierItem"_s, u"Activate"_s, {0, 0});
    EXPECT_EQ(chosen, QStringList{u"activated"_s});
}

TEST_F(TrayItemTest, DrawsEverySymbolInAllSizesOfPanels)
{
    Panel panel;
    ASSERT_TRUE(awaitItem(panel));
    QSet<QByteArray> drawings;
    const std::initializer_list<std::pair<QString, QByteArray>> symbols{
        {u"waveform"_s, "ff1a1612"}, {u"record.circle.fill"_s, "ffc9553b"}, {u"ellipsis.circle"_s, "ff1a1612"}};
    for (const auto &[symbol, ground] : symbols) {
        item.setLabel(symbol, {});
        ASSERT_TRUE(await([&] { return panel.takeSignals().contains(u"NewIcon"_s); }));
        QList<int> sizes;
        const auto pixmaps = qdbus_cast<QList<StatusNotifierPixmap>>(shown(panel).value(u"IconPixmap"_s));
        for (const StatusNotifierPixmap &pixmap : pixmaps) {
            EXPECT_EQ(pixmap.height, pixmap.width);
            EXPECT_EQ(pixmap.argb.size(), qsizetype(4) * pixmap.width * pixmap.height);
            sizes.append(pixmap.width);
            drawings.insert(pixmap.argb);
            // Network byte order: opacity first. The middle of the left edge is the symbol's opaque ground.
            const auto place = static_cast<qsizetype>(4) * pixmap.width * (pixmap.height / 2);
            EXPECT_EQ(pixmap.argb.mid(place, 4).toHex(), ground) << symbol.toStdString() << ' ' << pixmap.width;
        }
        EXPECT_EQ(sizes, (QList<int>{16, 22, 24, 32, 48}));
    }
    EXPECT_EQ(drawings.size(), 15);
}

TEST_F(TrayItemTest, ThePanelReadsAndUsesTheMenu)
{
    Panel panel;
    ASSERT_TRUE(awaitItem(panel));
    item.setMenu(menu(u"Ready"_s, true));
    const DBusMenuLayout root = panel.menu();
    ASSERT_EQ(root.children.size(), 5);
    EXPECT_EQ(root.children[0].values, (QVariantMap{{u"label"_s, u"Ready"_s}, {u"enabled"_s, false}}));
    EXPECT_EQ(root.children[1].values, (QVariantMap{{u"type"_s, u"separator"_s}}));
    EXPECT_EQ(root.children[2].values, (QVariantMap{{u"label"_s, u"Group: All__entries"_s}, // else an access key
                                                    {u"children-display"_s, u"submenu"_s}}));
    ASSERT_EQ(root.children[2].children.size(), 2);
    const DBusMenuLayout two = root.children[2].children[1];
    EXPECT_EQ(two.values,
              (QVariantMap{{u"label"_s, u"two"_s}, {u"toggle-type"_s, u"radio"_s}, {u"toggle-state"_s, 0}}));
    EXPECT_EQ(qdbus_cast<QList<QStringList>>(root.children[3].values.value(u"shortcut"_s)),
              (QList<QStringList>{{u"Control"_s, u"Super"_s, u"comma"_s}}));

    for (const DBusMenuLayout &entry : {two, root.children[3], root.children[4], root.children[0]}) {
        panel.choose(entry.id); // the last two can't be chosen
    }
    panel.choose(99); // of a menu that has been replaced
    EXPECT_EQ(chosen, (QStringList{u"two"_s, u"quit"_s}));
}

TEST_F(TrayItemTest, AnOpenMenuChangesInPlaceUnlessItsShapeDoes)
{
    Panel panel;
    ASSERT_TRUE(awaitItem(panel));
    item.setMenu(menu(u"Ready"_s, true));
    ASSERT_TRUE(await([&] { return panel.takeSignals().contains(u"LayoutUpdated"_s); }));
    const DBusMenuLayout before = panel.menu();

    item.setMenu(menu(u"Ready"_s, true)); // nothing to tell
    item.setMenu(menu(u"Listening"_s, false));
    ASSERT_TRUE(await([&] { return panel.takeSignals() == QStringList{u"ItemsPropertiesUpdated"_s}; }));
    const auto &choices = before.children[2].children;
    EXPECT_EQ(panel.updates().keys(), (QList<int>{before.children[0].id, choices[0].id, choices[1].id}));
    EXPECT_EQ(panel.updates().value(before.children[0].id).value(u"label"_s), u"Listening"_s);
    EXPECT_EQ(panel.updates().value(choices[1].id).value(u"toggle-state"_s), 1);

    auto longer = menu(u"Listening"_s, false);
    longer[2].children.append({.kind = MenuItem::Kind::Choice, .title = u"three"_s});
    item.setMenu(longer);
    ASSERT_TRUE(await([&] { return panel.takeSignals() == QStringList{u"LayoutUpdated"_s}; }));
    const DBusMenuLayout after = panel.menu();
    EXPECT_EQ(after.children[2].children.size(), 3);
    // A click on the former menu, from a panel that has not drawn the new one yet, must not meet another item.
    panel.choose(choices[1].id);
    panel.choose(before.children[3].id);
    EXPECT_EQ(chosen, QStringList());
    panel.choose(after.children[3].id);
    EXPECT_EQ(chosen, QStringList{u"quit"_s});
    item.setMenu(menu(u"Listening"_s, false));
    const DBusMenuLayout shorter = panel.menu();
    for (const DBusMenuLayout &entry : after.children) {
        panel.choose(entry.id);
    }
    EXPECT_EQ(chosen, QStringList{u"quit"_s});
    panel.choose(shorter.children[2].children[1].id);
    EXPECT_EQ(chosen, (QStringList{u"quit"_s, u"two"_s}));
}

TEST_F(TrayItemTest, TheExaminationSaysWhatThereIs)
{
    EXPECT_EQ(examineTray(bus, false).level, Finding::Level::Note);
    EXPECT_EQ(examineTray(bus, true).text, u"XEmbed"_s);
}

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    const Session session(Session::Keyring::None);
    session.use();
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
