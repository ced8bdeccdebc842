// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Finding.h"

#include <QDBusConnection>

/// Whether the desktop has a host for StatusNotifierItems. `hasOtherTray`: there is a tray of another kind.
Finding examineTray(const QDBusConnection &bus, bool hasOtherTray);
