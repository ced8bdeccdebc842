// SPDX-License-Identifier: MIT
#pragma once

#include "app/model/AppModel.h"

/// The dictation state as views and scripts read it: "idle", "recording" or "transcribing".
inline QString stateName(const AppModel::State &state)
{
    switch (state.value) {
    case AppModel::State::Case::Recording:
        return QStringLiteral("recording");
    case AppModel::State::Case::Transcribing:
        return QStringLiteral("transcribing");
    case AppModel::State::Case::Idle:
        break;
    }
    return QStringLiteral("idle");
}
