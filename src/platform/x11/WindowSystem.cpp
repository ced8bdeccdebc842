// SPDX-License-Identifier: MIT
#include "platform/x11/WindowSystem.h"

#include "platform/x11/Xcb.h"

#include <QGuiApplication>

void flushWindowSystem()
{
    if (const auto *const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>()) {
        xcb_flush(x11->connection());
    }
}
