// SPDX-License-Identifier: MIT
#include "ui/settings/ShortcutRecorderModel.h"

#include "FakeKeyMonitors.h"
#include "platform/KeyCodes.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <gtest/gtest.h>

namespace {

/// What a window would get of keys.
struct Window : QObject {
    bool event(QEvent *event) override
    {
        keys += event->type() == QEvent::KeyPress ? 1 : 0;
        return true;
    }
    void get(QEvent::Type type, Qt::Key key)
    {
        QKeyEvent event(type, key, {});
        QCoreApplication::sendEvent(this, &event);
    }
    int keys = 0;
};

} // namespace

// The monitors hear of a key before the window does, which may still have to hear of the releases of earlier ones.
TEST(ShortcutRecorderModel, KeepsTheRecordedKeyFromTheWindowUntilThatKeyIsReleased)
{
    FakeKeyMonitors monitors;
    Window window;
    ShortcutRecorderModel model(monitors, {[] {}, [] {}, [](const Shortcut &) {}});
    model.toggle();
    (*monitors.local.front())(
        {.keyCode = 40, .modifierFlags = EventFlag::control, .charactersIgnoringModifiers = QStringLiteral("k")});
    ASSERT_FALSE(model.isRecording());

    for (const Qt::Key earlier : {Qt::Key_Control, Qt::Key_Alt, Qt::Key_Shift, Qt::Key_Meta, Qt::Key_AltGr}) {
        window.get(QEvent::KeyRelease, earlier);
    }
    window.get(QEvent::KeyPress, Qt::Key_K);
    EXPECT_EQ(window.keys, 0);
    window.get(QEvent::KeyRelease, Qt::Key_K);
    window.get(QEvent::KeyPress, Qt::Key_K);
    EXPECT_EQ(window.keys, 1);
}
