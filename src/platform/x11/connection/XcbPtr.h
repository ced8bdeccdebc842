// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

// The header of the keyboard extension names a structure member with a C++ keyword.
#ifdef __clang__
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wkeyword-macro"
#endif
#define explicit explicitMember
#include <xcb/xkb.h>
#undef explicit
#ifdef __clang__
#pragma clang diagnostic pop
#endif

struct XcbFree {
    void operator()(void *memory) const { std::free(memory); }
};

/// Owns a reply, an event or an error; null when the request failed or the connection is gone.
template <typename T> using XcbPtr = std::unique_ptr<T, XcbFree>;

inline constexpr xcb_window_t noWindow = XCB_WINDOW_NONE;

/// The type of an event, sent by the server or by another client.
inline uint8_t eventType(const xcb_generic_event_t &event)
{
    return event.response_type & 0x7F;
}

/// The event as its own type.
template <typename T> const T &eventAs(const xcb_generic_event_t &event)
{
    return reinterpret_cast<const T &>(event);
}
