// SPDX-License-Identifier: MIT
#include "platform/x11/windows/QtScreens.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

QList<Screen> QtScreens::screens() const
{
    QList<Screen> screens;
    for (const auto *const screen : QGuiApplication::screens()) { // the primary screen comes first
        screens.append({screen->geometry(), screen->availableGeometry()});
    }
    return screens;
}

QPointF QtScreens::mouseLocation() const
{
    return QCursor::pos();
}
