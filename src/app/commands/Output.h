// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What commands print, in UTF-8.
namespace Output {

/// On standard output, as it stands.
void print(const QString &text);
/// On standard error, one line, "quillo: " before it; returns `status`.
int fail(const QString &sentence, int status);
/// Replaces the progress line on standard error; an empty one clears it. Nothing where that is no terminal.
void progress(const QString &line);

} // namespace Output
