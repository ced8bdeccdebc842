// SPDX-License-Identifier: MIT
#pragma once

#include "shortcuts/Shortcut.h"

class Preferences;

/// One of the three shortcuts as the preferences have it.
struct StoredShortcut {
    enum class Use { Dictation, Group, History };

    /// The preference that holds it, as JSON.
    static QString key(Use use);
    /// What holds while nothing readable is stored.
    static Shortcut standard(Use use);
    static Shortcut read(const Preferences &preferences, Use use);
};
