// SPDX-License-Identifier: MIT
#pragma once

/// Sends what Qt has asked of the X server. Its own dispatcher flushes its connection, but some dispatchers not after a
/// timer, and none before a request that another connection makes.
void flushWindowSystem();
