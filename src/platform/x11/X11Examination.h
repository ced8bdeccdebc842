// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Finding.h"

#include <QList>

class X11Connection;

/// What the X server and the programs on it offer for dictation.
QList<Finding> examineX11(X11Connection &connection);
