// SPDX-License-Identifier: MIT
#include "ui/style/Paper.h"

#include <QDir>
#include <QFontDatabase>
#include <QMap>
#include <QRawFont>
#include <QStringDecoder>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace {

/// The registered fonts by their PostScript names.
QMap<QString, QFont> &registered()
{
    static QMap<QString, QFont> fonts;
    return fonts;
}

/// The PostScript name, entry 6 of a font's name table in the encoding of Windows; Qt does not tell it.
QString postScriptName(const QRawFont &font)
{
    constexpr qsizetype headerSize = 6;
    constexpr qsizetype recordSize = 12;
    const QByteArray table = font.fontTable("name");
    const auto number = [&](qsizetype at) {
        return at + 2 <= table.size() ? qFromBigEndian<quint16>(table.constData() + at) : quint16(0);
    };
    const qsizetype texts = number(4);
    for (qsizetype record = headerSize; record < headerSize + number(2) * recordSize; record += recordSize) {
        const bool isWindows = number(record) == 3;
        if (isWindows && number(record + 6) == 6) {
            const QByteArray name = table.mid(texts + number(record + 10), number(record + 8));
            return QStringDecoder(QStringDecoder::Utf16BE)(name);
        }
    }
    return {};
}

QFont sized(QFont font, int size, qreal letterSpacing = 0)
{
    font.setPixelSize(size);
    if (letterSpacing != 0) {
        font.setLetterSpacing(QFont::AbsoluteSpacing, letterSpacing);
    }
    return font;
}

QFont display(const QString &postScriptName, const QString &substitute, QFont::Weight weight, bool isItalic, int size)
{
    if (Paper::hasFraunces() && registered().contains(postScriptName)) {
        return sized(registered().value(postScriptName), size);
    }
    QFont font;
    font.setFamilies({substitute, u"serif"_s});
    font.setStyleHint(QFont::Serif);
    font.setWeight(weight);
    font.setItalic(isItalic);
    return sized(font, size);
}

QFont helvetica(QFont::Weight weight, int size, qreal letterSpacing)
{
    QFont font;
    font.setFamilies({u"Helvetica Neue"_s, u"Liberation Sans"_s, u"sans-serif"_s});
    font.setStyleHint(QFont::SansSerif);
    font.setWeight(weight);
    return sized(font, size, letterSpacing);
}

} // namespace

QColor Paper::background()
{
    return QColor::fromRgbF(0.957F, 0.937F, 0.898F);
}

QColor Paper::primary()
{
    return QColor::fromRgbF(0.102F, 0.086F, 0.071F);
}

QColor Paper::secondary()
{
    return QColor::fromRgbF(0.478F, 0.443F, 0.408F);
}

QColor Paper::accent()
{
    return QColor::fromRgbF(0.788F, 0.333F, 0.231F);
}

QColor Paper::divider()
{
    QColor color = secondary();
    color.setAlphaF(0.3F);
    return color;
}

QColor Paper::faded()
{
    QColor color = secondary();
    color.setAlphaF(0.45F);
    return color;
}

void Paper::registerFonts(const QString &resourceFolder)
{
    const QDir folder(resourceFolder + u"/Fonts"_s);
    for (const QString &name : folder.entryList(QDir::Files)) {
        if (!name.endsWith(u".ttf"_s)) {
            continue;
        }
        const QString path = folder.filePath(name);
        const QRawFont face(path, 12);
        const int id = QFontDatabase::addApplicationFont(path);
        const QStringList families = QFontDatabase::applicationFontFamilies(id);
        if (!face.isValid() || families.isEmpty()) {
            continue;
        }
        QFont font(families.first());
        font.setStyleName(face.styleName());
        font.setWeight(QFont::Weight(face.weight()));
        font.setItalic(face.style() != QFont::StyleNormal);
        registered().insert(postScriptName(face), font);
    }
}

bool Paper::hasFraunces()
{
    return registered().contains(u"Fraunces72pt-Regular"_s);
}

QFont Paper::black(int size)
{
    return display(u"Fraunces72pt-Black"_s, u"Vollkorn"_s, QFont::Black, false, size);
}

QFont Paper::italic(int size)
{
    return display(u"Fraunces72pt-Italic"_s, u"Vollkorn"_s, QFont::Normal, true, size);
}

QFont Paper::italicFigures(int size)
{
    return display(u"Fraunces72pt-Italic"_s, u"Liberation Serif"_s, QFont::Normal, true, size);
}

QFont Paper::sans(int size, qreal letterSpacing)
{
    return helvetica(QFont::Normal, size, letterSpacing);
}

QFont Paper::sansMedium(int size, qreal letterSpacing)
{
    return helvetica(QFont::Medium, size, letterSpacing);
}
