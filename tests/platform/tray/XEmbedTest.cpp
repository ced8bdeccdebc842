// SPDX-License-Identifier: MIT
#include "FakeClock.h"
#include "Panel.h"
#include "WindowTray.h"
#include "platform/tray/TrayItem.h"
#include "platform/tray/XEmbedItem.h"
#include "support/Await.h"
#include "support/Session.h"

#include <QActionGroup>
#include <QApplication>
#include <QMenu>

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const VirtualDisplay *display = nullptr; // one for the whole program: an application has one display

constexpr QRgb dark = WindowTray::dark;
constexpr QRgb red = WindowTray::red;

class XEmbedTest : public testing::Test {
protected:
    XEmbedTest()
    {
        item.setLabel(u"waveform"_s, u"Work"_s);
        item.setMenu({{.kind = MenuItem::Kind::Text, .title = u"Ready"_s},
                      {.kind = MenuItem::Kind::Button, .title = u"Choose"_s, .action = [this] { ++choices; }}});
    }
    ~XEmbedTest() override { QDBusConnection::disconnectFromBus(bus.name()); }

    QRect symbol(QRgb ground) { return WindowTray::symbol(user, ground); }
    bool awaitSymbol(QRgb ground)
    {
        return await([&] { return WindowTray::hasSymbol(user, ground); });
    }

    FakeClock clock;
    QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"xembed"_s);
    TrayItem item{clock, bus};
    TestClient user{*display};
    int choices = 0;
};

} // namespace

TEST_F(XEmbedTest, ATrayThatComesLateOrComesBackHasTheIcon)
{
    clock.advance(3s);
    for (int start = 0; start < 2; ++start) {
        {
            const WindowTray tray(*display);
            EXPECT_TRUE(awaitSymbol(dark)) << start;
        }
        EXPECT_TRUE(await([this] { return symbol(dark).isEmpty(); })) << start;
    }
}

TEST_F(XEmbedTest, TheIconStandsInTheTrayUntilAPanelShowsTheItem)
{
    const WindowTray tray(*display);
    clock.advance(2999ms);
    EXPECT_EQ(clock.pending(), 1);
    clock.advance(1ms);
    ASSERT_TRUE(awaitSymbol(dark));

    Panel panel(Panel::Host::Absent); // a registry alone shows nothing to anybody
    ASSERT_TRUE(await([&] { return !panel.items().isEmpty(); }));
    item.setLabel(u"record.circle.fill"_s, {});
    EXPECT_TRUE(awaitSymbol(red));
    panel.addHost();
    EXPECT_TRUE(await([this] { return symbol(red).isEmpty(); }));
    clock.advance(1min);
    EXPECT_EQ(clock.pending(), 0);
}

TEST_F(XEmbedTest, APanelThatComesBackSoonLeavesNoSecondIcon)
{
    auto panel = std::make_unique<Panel>();
    ASSERT_TRUE(await([&] { return !panel->items().isEmpty() && clock.pending() == 0; }));
    panel.reset();
    ASSERT_TRUE(await([this] { return clock.pending() == 1; })); // waits for it
    clock.advance(2999ms);
    const Panel restarted;
    EXPECT_TRUE(await([this] { return clock.pending() == 0; }));
}

TEST_F(XEmbedTest, AClickOpensTheMenu)
{
    const WindowTray tray(*display);
    clock.advance(3s);
    ASSERT_TRUE(awaitSymbol(dark));
    const QPoint place = symbol(dark).center();
    user.click(place.x(), place.y());
    ASSERT_TRUE(await([] { return QApplication::activePopupWidget() != nullptr; }));
    auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    item.setMenu({{.kind = MenuItem::Kind::Text, .title = u"Listening"_s},
                  {.kind = MenuItem::Kind::Button, .title = u"A && B"_s, .action = [this] { choices += 10; }}});
    EXPECT_EQ(QApplication::activePopupWidget(), menu) << "it stays open";
    EXPECT_EQ(menu->actions().first()->text(), u"Listening"_s);
    user.tap(KEY_DOWN);
    user.tap(KEY_ENTER);
    EXPECT_TRUE(await([this] { return choices == 10; }));
}

TEST(XEmbedItemTest, AMenuOfAnotherShapeKeepsNothingOfTheFormer)
{
    XEmbedItem item({});
    item.setItems({{.kind = MenuItem::Kind::Submenu,
                    .title = u"Recent"_s,
                    .children = {{.kind = MenuItem::Kind::Button, .title = u"private words"_s}}}});
    item.setItems({});
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QList<QMenu *> menus;
    for (QWidget *widget : QApplication::allWidgets()) {
        if (auto *const menu = qobject_cast<QMenu *>(widget)) {
            menus.append(menu);
        }
    }
    ASSERT_EQ(menus.size(), 1);
    EXPECT_TRUE(menus[0]->actions().isEmpty());
    EXPECT_EQ(menus[0]->findChildren<QActionGroup *>().size(), 1);
}

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    const Session session(Session::Keyring::None);
    session.use();
    const VirtualDisplay server(VirtualDisplay::WindowManager::Openbox);
    server.use();
    display = &server;
    qputenv("QT_QPA_PLATFORM", "xcb");
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
