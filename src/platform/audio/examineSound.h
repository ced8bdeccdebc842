// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Finding.h"
#include "platform/Microphone.h"

#include <QCoroTask>
#include <QList>

class Clock;

/// The sound server, its default source, and how loud it is right now: half a second is recorded as `settings` say, to
/// a new file at `path` that is removed again.
QCoro::Task<QList<Finding>> examineSound(Clock &clock, QString path, AudioSettings settings);
