// SPDX-License-Identifier: MIT
#include "platform/x11/keys/X11Accessibility.h"

bool X11Accessibility::isTrusted() const
{
    return m_connection.extensions().rawKeys && m_connection.extensions().test;
}
