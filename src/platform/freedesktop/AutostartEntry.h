// SPDX-License-Identifier: MIT
#pragma once

#include "platform/LoginItem.h"

#include <QString>

/// Start at login by an XDG autostart entry, the file that the desktops' own switches edit: what they wrote is believed
/// and kept.
class AutostartEntry : public LoginItem {
public:
    /// `program` is the absolute path of the program to start.
    explicit AutostartEntry(QString program);

    Status status() const override;
    bool registerApp() override;
    /// Removes the user's entry; where the system has one for everybody, the user's hides it.
    bool unregisterApp() override;

private:
    QString m_program;
    QString m_userFile;
};
