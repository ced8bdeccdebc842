// SPDX-License-Identifier: MIT
#include "platform/x11/windows/flushWindowSystem.h"

#include "platform/x11/connection/XcbPtr.h"

#include <QGuiApplication>

void flushWindowSystem()
{
    if (const auto *const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>()) {
        xcb_flush(x11->connection());
    }
}
