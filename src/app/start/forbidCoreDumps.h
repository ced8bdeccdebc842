// SPDX-License-Identifier: MIT
#pragma once

/// Keeps the credential and what was said out of core dumps, and other programs of the user out of this one's memory;
/// for who looks for a fault, $QUILLO_DEBUG leaves all as it is.
void forbidCoreDumps();
