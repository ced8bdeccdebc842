// SPDX-License-Identifier: MIT
#include "ui/style/InterfaceFont.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGuiApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool hasEqualFigures(const QFont &font)
{
    const QFontMetricsF metrics(font);
    return std::ranges::all_of(u"123456789"_s, [&](QChar digit) {
        return qFuzzyCompare(metrics.horizontalAdvance(digit), metrics.horizontalAdvance(u'0'));
    });
}

} // namespace

QFont InterfaceFont::figures(int pixelSize)
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(pixelSize);
    if (!hasEqualFigures(font)) {
        font.setFamilies({u"Liberation Sans"_s, u"DejaVu Sans"_s});
    }
    if (!hasEqualFigures(font)) {
        font.setFamily(QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
    }
    return font;
}
