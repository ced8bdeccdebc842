// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What the program says, in the person's language. The texts in the sources are the system's own; the English
/// catalogue says them in this desktop's words and lies beneath every other, so that a text a language lacks is still
/// one that makes sense here.
namespace Translations {

/// Loads the catalogues for the life of the application, which must exist. `language` is a code such as "de" or
/// "pt_BR"; empty, the environment decides (LANGUAGE, LC_ALL, LC_MESSAGES, LANG). A language without a catalogue is
/// English. To be called once, on the main thread, before a text is shown.
void install(const QString &language);

} // namespace Translations
