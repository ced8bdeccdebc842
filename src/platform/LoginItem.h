// SPDX-License-Identifier: MIT
#pragma once

/// Whether the desktop starts the program when the user logs in. Main thread only; every call reads or writes the
/// desktop's own record, which the user may change elsewhere.
class LoginItem {
public:
    enum class Status { NotRegistered = 0, Enabled = 1 };

    virtual ~LoginItem() = default;

    virtual Status status() const = 0;
    /// False when the desktop's record could not be written.
    virtual bool registerApp() = 0;
    virtual bool unregisterApp() = 0;
};
