// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>

/// Whether a recording (mono, `speechRate`) is loud enough somewhere, for long enough, to hold a word. Speech models
/// invent words for silence, so what does not pass is not given to them.
bool mayHoldSpeech(std::span<const int16_t> samples);
