// SPDX-License-Identifier: MIT
#include "ui/style/Paper.h"
#include "ui/style/InterfaceFont.h"

#include "support/Printing.h"

#include <QDir>
#include <QFile>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray utf16(const QString &text)
{
    QByteArray bytes;
    for (const QChar c : text) {
        bytes.append(char(c.unicode() >> 8)).append(char(c.unicode() & 0xFF));
    }
    return bytes;
}

/// A font of the system under another PostScript name of the same length.
QByteArray renamedFont()
{
    QFile file(u"/usr/share/fonts/truetype/liberation/LiberationSerif-Bold.ttf"_s);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << "fonts-liberation is not installed";
    return file.readAll().replace(utf16(u"LiberationSerif-Bold"_s), utf16(u"Fraunces72pt-Regular"_s));
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

} // namespace

// One test, in this order: registered fonts stay for the life of the process.
TEST(PaperTest, TheDisplayFaceIsThereOnceItsFileIsRegistered)
{
    const QTemporaryDir folder;
    Paper::registerFonts(folder.path());
    EXPECT_FALSE(Paper::hasFraunces());
    EXPECT_TRUE(Paper::italic(22).italic());
    EXPECT_EQ(Paper::black(44).weight(), QFont::Black);
    EXPECT_EQ(Paper::black(44).pixelSize(), 44);

    QDir(folder.path()).mkdir(u"Fonts"_s);
    write(folder.filePath(u"Fonts/broken.ttf"_s), "no font");
    write(folder.filePath(u"Fonts/capitals.TTF"_s), renamedFont());
    Paper::registerFonts(folder.path());
    EXPECT_FALSE(Paper::hasFraunces());

    write(folder.filePath(u"Fonts/face.ttf"_s), renamedFont());
    Paper::registerFonts(folder.path());
    EXPECT_TRUE(Paper::hasFraunces());
}

TEST(InterfaceFontTest, FiguresAreEquallyWideWhateverTheInterfaceFontHas)
{
    const QFont before = QGuiApplication::font();
    for (const QString &family : {before.family(), u"Vollkorn"_s}) {
        QGuiApplication::setFont(QFont(family));
        const QFontMetricsF metrics(InterfaceFont::figures(13));
        EXPECT_EQ(metrics.horizontalAdvance(u"1111"_s), metrics.horizontalAdvance(u"0000"_s)) << family.toStdString();
    }
    QGuiApplication::setFont(before);
}
