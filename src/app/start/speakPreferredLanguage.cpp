// SPDX-License-Identifier: MIT
#include "app/start/speakPreferredLanguage.h"

#include "i18n/Translations.h"
#include "platform/freedesktop/IniPreferences.h"

using namespace Qt::StringLiterals;

void speakPreferredLanguage()
{
    const IniPreferences preferences(IniPreferences::defaultPath());
    Translations::install(preferences.string(u"language"_s).value_or(QString()));
}
