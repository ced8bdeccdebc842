// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <ostream>

// How GoogleTest shows Qt's values in a failure.
inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QByteArray &bytes, std::ostream *out)
{
    *out << '"' << bytes.toStdString() << '"';
}
