// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Without the spaces and tabs at both ends. Line breaks stay.
inline QString trimmedBlanks(QStringView text)
{
    const auto isBlank = [](QChar c) { return c == u' ' || c == u'\t'; };
    while (!text.isEmpty() && isBlank(text.front())) {
        text = text.mid(1);
    }
    while (!text.isEmpty() && isBlank(text.back())) {
        text.chop(1);
    }
    return text.toString();
}
