// SPDX-License-Identifier: MIT
#pragma once

#include <QUrl>

/// The desktop around the program. Main thread only; every call returns at once.
class Workspace {
public:
    enum class PrivacyPane { Microphone, Accessibility };

    virtual ~Workspace() = default;

    /// Opens a link in the default program for it; false when there is none.
    virtual bool open(const QUrl &url) = 0;

    /// Opens the desktop's settings page for a permission; false when the desktop has none.
    virtual bool openPrivacySettings(PrivacyPane pane) = 0;
};
