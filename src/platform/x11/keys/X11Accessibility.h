// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Accessibility.h"
#include "platform/x11/connection/X11Connection.h"

/// X11 lets every client watch and post keys, so trust is a matter of the server having the extensions for it. There
/// is nobody to ask: promptForTrust does nothing.
class X11Accessibility final : public Accessibility {
public:
    explicit X11Accessibility(const X11Connection &connection) : m_connection(connection) {}

    bool isTrusted() const override;
    void promptForTrust() override {}

private:
    const X11Connection &m_connection;
};
