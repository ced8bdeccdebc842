// SPDX-License-Identifier: MIT
#pragma once

#include "app/Settings.h"
#include "engine/Engine.h"

#include <memory>

/// The desktop program stops recording after 15 minutes.
inline constexpr std::chrono::minutes longestRecording{20};

/// The engine that the settings name.
std::unique_ptr<Engine> makeEngine(const Settings &settings);
