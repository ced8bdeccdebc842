// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>

#include <algorithm>

/// What the saver saves: two contents that differ in every byte and in length.
namespace SaverContent {

inline constexpr qsizetype shorter = 2'000'000;

inline QByteArray first()
{
    return QByteArray(shorter, 'a');
}

inline QByteArray second()
{
    return QByteArray(shorter + 1'000'000, 'b');
}

inline QList<QByteArrayView> pieces(QByteArrayView content)
{
    constexpr qsizetype length = 10'000;
    QList<QByteArrayView> pieces;
    for (qsizetype start = 0; start < content.size(); start += length) {
        pieces.append(content.sliced(start, std::min(length, content.size() - start)));
    }
    return pieces;
}

} // namespace SaverContent
