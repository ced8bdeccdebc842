// SPDX-License-Identifier: MIT
#include "i18n/Translations.h"

#include "shortcuts/Shortcut.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(TranslationsTest, SpeaksTheLanguageAskedForAndEnglishWhereThereIsNone)
{
    struct Row {
        QString language;
        QString shortcut;
        QString entries;
    };
    const Shortcut shortcut = Shortcut::combo(49, 0x1A00, u"Space"_s);
    EXPECT_EQ(shortcut.label(), u"⌃⌥⇧ Space"_s);
    for (const Row &row : {Row{u"en"_s, u"Ctrl+Alt+Shift+Space"_s, u"0 entries"_s},
                           Row{u"de"_s, u"Strg+Alt+Umschalt+Leertaste"_s, u"0 Einträge"_s},
                           Row{u"fr"_s, u"Ctrl+Alt+Maj+Espace"_s, u"0 entrée"_s},
                           Row{u"de_CH"_s, u"Strg+Alt+Umschalt+Leertaste"_s, u"0 Einträge"_s},
                           Row{u"zh_CN"_s, u"Ctrl+Alt+Shift+空格"_s, u"0 个条目"_s},
                           Row{u"xx"_s, u"Ctrl+Alt+Shift+Space"_s, u"0 entries"_s}}) {
        Translations::install(row.language);
        EXPECT_EQ(shortcut.label(), row.shortcut) << row.language.toStdString();
        EXPECT_EQ(QCoreApplication::translate("HistoryModel", "%n entries", nullptr, 0), row.entries);
    }
    qputenv("LANGUAGE", "pt_BR:de");
    qputenv("LC_ALL", "pt_BR.UTF-8");
    Translations::install({});
    EXPECT_EQ(shortcut.label(), u"Ctrl+Alt+Shift+Espaço"_s);
}
