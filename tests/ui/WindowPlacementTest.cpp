// SPDX-License-Identifier: MIT
#include "ui/windows/WindowPlacement.h"

#include "FakeDesktop.h"
#include "support/Printing.h"

#include <QWindow>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QRect restored(const QString &geometry, const Screens &screens)
{
    QWindow window;
    window.setMinimumSize({380, 440});
    window.setGeometry(1, 2, 460, 680);
    WindowPlacement::restore(window, geometry, screens);
    return window.geometry();
}

} // namespace

TEST(WindowPlacementTest, AWindowComesBackWholeOnTheScreenThatShowsMostOfIt)
{
    FakeScreens screens;
    screens.all = {{QRectF(0, 0, 1000, 800), QRectF(0, 20, 1000, 780)},
                   {QRectF(1000, 0, 600, 360), QRectF(1000, 0, 600, 360)}};
    const std::pair<QString, QRect> table[]{
        {u"300 100 460 680"_s, {300, 100, 460, 680}},
        {u"-50 -118 460 680"_s, {0, 52, 460, 680}},     // below the panel and the title bar
        {u"900 700 460 680"_s, {540, 120, 460, 680}},   // the lower right corner
        {u"980 50 460 680"_s, {1000, 32, 460, 328}},    // a screen lower than the window's least height
        {u"4000 3000 460 680"_s, {540, 120, 460, 680}}, // a screen that is gone: the one with the pointer
        {u"300 100 460"_s, {1, 2, 460, 680}},
        {u"300 100 460 wide"_s, {1, 2, 460, 680}},
    };
    for (const auto &[stored, expected] : table) {
        EXPECT_EQ(restored(stored, screens), expected) << stored.toStdString();
    }
}

TEST(WindowPlacementTest, AWindowOpensInTheMiddleOfTheScreenWithThePointer)
{
    FakeScreens screens;
    screens.all = {{QRectF(0, 0, 800, 600), QRectF(0, 0, 800, 600)},
                   {QRectF(800, 0, 1000, 900), QRectF(800, 0, 1000, 900)}};
    const std::pair<QPointF, QRect> table[]{
        {{799, 10}, {171, 32, 460, 568}},   // too high for it
        {{800, 10}, {1071, 111, 460, 680}}, // the first column of the second screen
    };
    for (const auto &[pointer, expected] : table) {
        QWindow window;
        window.setGeometry(0, 0, 460, 680);
        screens.pointer = pointer;
        WindowPlacement::centre(window, screens);
        EXPECT_EQ(window.geometry(), expected) << pointer.x();
    }
}
