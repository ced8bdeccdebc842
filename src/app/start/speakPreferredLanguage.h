// SPDX-License-Identifier: MIT
#pragma once

/// Loads the catalogues of the preference "language", such as "de", or of the environment's language without it. For
/// an application object that has just been made; its texts are in that language from then on.
void speakPreferredLanguage();
