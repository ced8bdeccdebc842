// SPDX-License-Identifier: MIT
#include "app/model/StoredShortcut.h"

#include "platform/KeyCodes.h"
#include "platform/Preferences.h"

using namespace Qt::StringLiterals;

QString StoredShortcut::key(Use use)
{
    switch (use) {
    case Use::Group:
        return u"groupShortcut"_s;
    case Use::History:
        return u"historyShortcut"_s;
    case Use::Dictation:
        break;
    }
    return u"shortcut.v2"_s;
}

Shortcut StoredShortcut::standard(Use use)
{
    constexpr uint32_t controlOption = HotKeyModifier::control | HotKeyModifier::option;
    switch (use) {
    case Use::Group:
        return Shortcut::combo(KeyCode::g, controlOption, u"G"_s);
    case Use::History:
        return Shortcut::combo(KeyCode::h, controlOption, u"H"_s);
    case Use::Dictation:
        break;
    }
    return Shortcut::combo(KeyCode::space, controlOption, u"Space"_s);
}

Shortcut StoredShortcut::read(const Preferences &preferences, Use use)
{
    const QByteArray stored = preferences.data(key(use)).value_or(QByteArray());
    return Shortcut::fromJson(stored).value_or(standard(use));
}
