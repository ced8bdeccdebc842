// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// A new identifier: a random UUID in its 36-character canonical form, upper case.
QString newIdentifier();
