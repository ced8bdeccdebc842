// SPDX-License-Identifier: MIT
#pragma once

/// What an X server has beyond the core protocol.
struct X11Extensions {
    bool xkb = false;
    bool xfixes = false;
    bool test = false;
    /// XInput 2.2, the first whose raw key events arrive while another client grabs the keyboard.
    bool rawKeys = false;
};
