// SPDX-License-Identifier: MIT
#include "app/menu/shortened.h"

#include <QTextBoundaryFinder>

using namespace Qt::StringLiterals;

QString shortened(const QString &text, int most)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    for (int count = 0; count < most; ++count) {
        if (finder.toNextBoundary() < 0) {
            return text;
        }
    }
    return finder.position() < text.size() ? text.left(finder.position()) + u"…"_s : text;
}
