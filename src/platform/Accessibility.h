// SPDX-License-Identifier: MIT
#pragma once

/// Whether this program may watch the keys of other programs and post keys to them. Main thread only.
class Accessibility {
public:
    virtual ~Accessibility() = default;

    virtual bool isTrusted() const = 0;

    /// Asks the user for trust where the desktop has such a question; returns at once.
    virtual void promptForTrust() = 0;
};
