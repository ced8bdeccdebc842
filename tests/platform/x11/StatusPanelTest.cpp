// SPDX-License-Identifier: MIT
#include "FakeClock.h"
#include "TestClient.h"
#include "platform/x11/X11Backend.h"
#include "platform/x11/connection/X11Extensions.h"
#include "platform/x11/connection/examineX11.h"
#include "platform/x11/windows/TerminalClasses.h"
#include "support/Await.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QRasterWindow>

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

namespace {

const VirtualDisplay *display = nullptr; // one for the whole program: an application has one display

constexpr QRect panelFrame(340, 200, 240, 60);
constexpr QPoint panelCentre(460, 230);
constexpr QPoint panelCorner(341, 201);

/// A black panel that counts clicks.
class PanelContent final : public QRasterWindow {
public:
    int clicks = 0;

protected:
    void paintEvent(QPaintEvent *) override { QPainter(this).fillRect(QRect(QPoint(), size()), Qt::black); }
    void mousePressEvent(QMouseEvent *) override { ++clicks; }
};

class StatusPanelTest : public testing::Test {
protected:
    StatusPanelTest()
    {
        auto content = std::make_unique<PanelContent>();
        content->resize(panelFrame.size());
        window = content.get();
        panel = backend->statusPanels().adopt(std::move(content));
        panel->setOutline(QRectF(QPointF(), QSizeF(panelFrame.size())));
        panel->setFrameOrigin(panelFrame.topLeft());
        user.next(XCB_EXPOSE); // the window manager has shown the other program's window
    }

    void show()
    {
        panel->orderFrontRegardless();
        ASSERT_TRUE(await([this] { return colourAt(panelCentre) == Qt::black; }));
    }

    QColor colourAt(QPoint point)
    {
        const XcbPtr<xcb_get_image_reply_t> image(
            xcb_get_image_reply(user.xcb(),
                                xcb_get_image(user.xcb(), XCB_IMAGE_FORMAT_Z_PIXMAP, user.root(), int16_t(point.x()),
                                              int16_t(point.y()), 1, 1, UINT32_MAX),
                                nullptr));
        return QColor::fromRgb(*reinterpret_cast<const QRgb *>(xcb_get_image_data(image.get())));
    }

    TestClient user{*display};
    xcb_window_t below = user.addWindow();
    FakeClock clock;
    QString whyNot;
    std::unique_ptr<X11Backend> backend = X11Backend::create(clock, TerminalClasses::defaults(), &whyNot);
    PanelContent *window = nullptr;
    std::unique_ptr<StatusPanel> panel;
};

TEST_F(StatusPanelTest, ShowingAndClickingLeaveTheFocusWhereItIs)
{
    ASSERT_TRUE(await([this] { return user.focusedWindow() == below; }));
    show();
    panel->setIgnoresMouseEvents(false);
    user.click(panelCentre.x(), panelCentre.y());
    ASSERT_TRUE(await([this] { return window->clicks == 1; }));
    EXPECT_EQ(user.focusedWindow(), below);
    user.tap(KEY_A);
    EXPECT_TRUE(user.next(XCB_KEY_PRESS));
}

TEST_F(StatusPanelTest, ClicksGoThroughUntilThePanelTakesThem)
{
    for (int shows = 0; shows < 2; ++shows) {
        show();
        user.click(panelCentre.x(), panelCentre.y());
        EXPECT_TRUE(user.next(XCB_BUTTON_PRESS));
        EXPECT_EQ(window->clicks, 0);
        panel->orderOut();
    }
    show();
    panel->setIgnoresMouseEvents(false);
    EXPECT_TRUE(await([this] {
        user.click(panelCentre.x(), panelCentre.y());
        return window->clicks > 0;
    }));
    user.takeEvents(XCB_BUTTON_PRESS);
    panel->setIgnoresMouseEvents(true);
    EXPECT_TRUE(await([this] {
        user.click(panelCentre.x(), panelCentre.y());
        return user.takeEvents(XCB_BUTTON_PRESS) > 0;
    }));
}

TEST_F(StatusPanelTest, CornersAreCutAwayWhereNobodyBlendsWindows)
{
    ASSERT_TRUE(await([this] { return colourAt(panelCorner) == Qt::white; })) << "the window below";
    show();
    EXPECT_EQ(colourAt(panelCorner), Qt::white);
    panel->orderOut();
    ASSERT_TRUE(user.ownsSelection(below, "_NET_WM_CM_S0")); // a compositing manager would blend the corner itself
    show();
    EXPECT_TRUE(await([this] { return colourAt(panelCorner) == Qt::black; }));
}

TEST_F(StatusPanelTest, ScreensAndPointerAreTheDisplays)
{
    const auto screens = backend->screens().screens();
    ASSERT_EQ(screens.size(), 1);
    EXPECT_EQ(screens[0].frame, QRectF(0, 0, 1280, 720));
    user.moveTo(123, 456);
    EXPECT_TRUE(await([this] { return backend->screens().mouseLocation() == QPointF(123, 456); }));
}

TEST_F(StatusPanelTest, ServerWithItsExtensionsIsTrusted)
{
    EXPECT_TRUE(backend->accessibility().isTrusted());
}

TEST_F(StatusPanelTest, OwnWindowsCanPasteWhatThisProgramWrote)
{
    backend->pasteboard().setString(QStringLiteral("dictated"));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("dictated")); // waits without an event loop
}

TEST(X11BackendTest, SaysWhyItIsNotUsable)
{
    FakeClock clock;
    QString whyNot;
    qputenv("DISPLAY", ":nowhere");
    EXPECT_EQ(X11Backend::create(clock, {}, &whyNot), nullptr);
    EXPECT_FALSE(whyNot.isEmpty());
    display->use();
}

/// The findings that aren't good, the problems with a mark.
QStringList lacking(const QList<Finding> &findings)
{
    QStringList subjects;
    for (const Finding &finding : findings) {
        if (finding.level != Finding::Level::Good) {
            const bool isProblem = finding.level == Finding::Level::Problem;
            subjects.append(finding.subject + (isProblem ? QStringLiteral("!") : QString()));
        }
    }
    return subjects;
}

TEST(X11BackendTest, AServerThatPostsNoKeysIsNotTrustedAndTheExaminationSaysSo)
{
    const VirtualDisplay server(VirtualDisplay::WindowManager::None,
                                {QStringLiteral("-extension"), QStringLiteral("XTEST")});
    server.use();
    FakeClock clock;
    QString whyNot;
    const auto lesser = X11Backend::create(clock, {}, &whyNot);
    const QStringList found = lacking(examineX11(DictationShortcutKind::Combination).findings);
    display->use();
    ASSERT_TRUE(lesser) << qPrintable(whyNot);
    EXPECT_FALSE(lesser->accessibility().isTrusted());
    EXPECT_EQ(found,
              (QStringList{QStringLiteral("Key posting"), QStringLiteral("Window manager"), QStringLiteral("xterm")}));
    run(QStringLiteral("xrdb"), {QStringLiteral("-merge"), QStringLiteral("-nocpp")}, display->environment(),
        "XTerm*VT100.translations: #override Ctrl Shift <Key>V: insert-selection(CLIPBOARD)\n");
    EXPECT_EQ(lacking(examineX11(DictationShortcutKind::Combination).findings), QStringList());
}

TEST(X11BackendTest, TheExaminationNamesTheExtensionWithoutWhichThereIsNoBackend)
{
    const VirtualDisplay server(VirtualDisplay::WindowManager::None,
                                {QStringLiteral("-extension"), QStringLiteral("XFIXES")});
    server.use();
    const QStringList found = lacking(examineX11(DictationShortcutKind::Combination).findings);
    display->use();
    EXPECT_EQ(found,
              (QStringList{QStringLiteral("Clipboard!"), QStringLiteral("Window manager"), QStringLiteral("xterm")}));
}

TEST(X11BackendTest, TheExaminationTellsWhatTheDictationShortcutCannotDoWithout)
{
    const X11Extensions none;
    EXPECT_EQ(lacking(examineX11Extensions(none, DictationShortcutKind::Combination)),
              (QStringList{QStringLiteral("Keyboard!"), QStringLiteral("Raw keys"), QStringLiteral("Key posting"),
                           QStringLiteral("Clipboard!")}));
    const X11Extensions noRawKeys{.xkb = true, .xfixes = true, .test = true, .rawKeys = false};
    EXPECT_EQ(lacking(examineX11Extensions(noRawKeys, DictationShortcutKind::SingleKey)),
              QStringList(QStringLiteral("Raw keys!")));
}

} // namespace

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    const VirtualDisplay server(VirtualDisplay::WindowManager::Openbox);
    server.use();
    display = &server;
    qputenv("QT_QPA_PLATFORM", "xcb");
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
