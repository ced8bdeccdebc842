// SPDX-License-Identifier: MIT
#pragma once

extern "C" {
#include <libavutil/log.h>
}

/// Keeps libav from writing on standard error: the program says in its own words what is wrong with a file, and the
/// encoder's statistics are nobody's concern. Process-wide, any thread.
inline void silenceLibav()
{
    av_log_set_level(AV_LOG_FATAL);
}
