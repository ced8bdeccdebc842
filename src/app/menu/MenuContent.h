// SPDX-License-Identifier: MIT
#pragma once

#include "platform/MenuItem.h"

class AppModel;
struct Platform;

/// The program's menu as things stand now. Its actions hold the controller and the platform, which outlive it.
QList<MenuItem> menuContent(AppModel &model, const Platform &platform);
