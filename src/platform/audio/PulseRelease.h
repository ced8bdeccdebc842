// SPDX-License-Identifier: MIT
#pragma once

#include <pulse/pulseaudio.h>

#include <memory>

/// Lets go of a request on its way, which does not cancel it; null for one that can't be made.
inline void release(pa_operation *operation)
{
    if (operation != nullptr) {
        pa_operation_unref(operation);
    }
}

struct PulseRelease {
    void operator()(pa_proplist *properties) const { pa_proplist_free(properties); }
    void operator()(pa_threaded_mainloop *loop) const { pa_threaded_mainloop_free(loop); }
};

using PulseProperties = std::unique_ptr<pa_proplist, PulseRelease>;
using PulseLoop = std::unique_ptr<pa_threaded_mainloop, PulseRelease>;
