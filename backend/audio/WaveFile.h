// SPDX-License-Identifier: MIT
#pragma once

#include "audio/AudioDecoder.h"

#include <string>

/// A WAV file of the samples.
std::string waveFile(const Samples &samples);
