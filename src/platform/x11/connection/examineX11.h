// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Finding.h"

#include <QList>

struct X11Extensions;

/// What the dictation shortcut is: a single key needs more of the X server than a combination.
enum class DictationShortcutKind { Combination, SingleKey };

struct X11Examination {
    QList<Finding> findings;
    /// A tray that takes windows in is there.
    bool hasXEmbedTray = false;
};

/// What the X server of $DISPLAY and the programs on it offer for dictation, on a connection of its own: it also finds
/// what keeps an X11Backend from being created. Main thread, with an application object.
X11Examination examineX11(DictationShortcutKind dictation);

/// The part of it that the server's extensions decide.
QList<Finding> examineX11Extensions(const X11Extensions &has, DictationShortcutKind dictation);
