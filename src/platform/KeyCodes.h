// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

/// The program's own vocabulary of keys and modifiers: the virtual key codes and masks that shortcuts are stored in.
/// Backends translate at their edge.
namespace KeyCode {
inline constexpr uint32_t h = 4;
inline constexpr uint32_t g = 5;
inline constexpr uint32_t v = 9;
inline constexpr uint32_t space = 49;
inline constexpr uint32_t escape = 53;
inline constexpr uint32_t rightCommand = 54;
inline constexpr uint32_t rightOption = 61;
inline constexpr uint32_t rightControl = 62;
inline constexpr uint32_t fn = 63;
/// Stands for every key that has no code of its own: Print Screen, Pause, the keys of media players.
inline constexpr uint32_t unknown = 0xFFFF;

/// The Linux evdev code (linux/input-event-codes.h) of a virtual key code, and back. X11 key codes are 8 higher.
std::optional<uint16_t> toEvdev(uint32_t keyCode);
std::optional<uint16_t> fromEvdev(uint16_t evdevCode);
} // namespace KeyCode

/// Modifier masks of hot keys and stored shortcuts.
namespace HotKeyModifier {
inline constexpr uint32_t command = 0x100;
inline constexpr uint32_t shift = 0x200;
inline constexpr uint32_t option = 0x800;
inline constexpr uint32_t control = 0x1000;
inline constexpr uint32_t all = command | shift | option | control;
} // namespace HotKeyModifier

/// Modifier flags of key events. The low half tells which key of a pair is held.
namespace EventFlag {
inline constexpr uint32_t shift = 0x20000;
inline constexpr uint32_t control = 0x40000;
inline constexpr uint32_t option = 0x80000;
inline constexpr uint32_t command = 0x100000;
inline constexpr uint32_t function = 0x800000;
inline constexpr uint32_t capsLock = 0x10000;
inline constexpr uint32_t deviceIndependent = 0xFFFF0000;

inline constexpr uint32_t leftControl = 0x1;
inline constexpr uint32_t leftShift = 0x2;
inline constexpr uint32_t rightShift = 0x4;
inline constexpr uint32_t leftCommand = 0x8;
inline constexpr uint32_t rightCommand = 0x10;
inline constexpr uint32_t leftOption = 0x20;
inline constexpr uint32_t rightOption = 0x40;
inline constexpr uint32_t rightControl = 0x2000;
} // namespace EventFlag
