// SPDX-License-Identifier: MIT
#pragma once

#include "http/Server.h"

/// One line of JSON: the time (RFC 3339, UTC), address, method, route, status, bytes, milliseconds, and what the reply
/// adds. Qt escapes control characters.
std::string accessLine(const AccessRecord &record);
