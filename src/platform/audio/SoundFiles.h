// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

struct AudioSettings;

/// Sound files of other programs, in every format that libav reads. Any thread; a call blocks until it is done.
namespace SoundFiles {

/// How much of the file has been read, from 0 to 1; below 0 when its length is not known. False stops the work.
using Progress = std::function<bool(double part)>;

/// Writes the sound of `source` to a new file at `destination` (mode 0600), encoded as `settings` says. Throws
/// LocalizedError when the source can't be read or has no sound, the file can't be written, or the work was stopped;
/// none is left then.
void convert(const QString &source, const QString &destination, const AudioSettings &settings,
             const Progress &progress);

} // namespace SoundFiles
