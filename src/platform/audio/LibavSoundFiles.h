// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SoundFiles.h"

/// Every format that libav reads.
class LibavSoundFiles : public SoundFiles {
public:
    void convert(const QString &source, const QString &destination, const AudioSettings &settings,
                 const Progress &progress) override;
};
