// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The text cut after its first `most` user-perceived characters, with an ellipsis when anything was cut.
QString shortened(const QString &text, int most);
