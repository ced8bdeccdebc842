// SPDX-License-Identifier: MIT
#include "shortcuts/Shortcut.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

const QString comboKey = u"combo"_s;
const QString modifierKeyName = u"modifier"_s;
const QString keyCodeKey = u"keyCode"_s;
const QString modifiersKey = u"modifiers"_s;
const QString nameKey = u"key"_s;
const QString firstValueKey = u"_0"_s;

std::optional<uint32_t> unsignedAt(const QJsonObject &object, const QString &key)
{
    const double number = object.value(key).isDouble() ? object.value(key).toDouble() : -1;
    const bool fits = number >= 0 && number <= std::numeric_limits<uint32_t>::max() && std::floor(number) == number;
    return fits ? std::optional(static_cast<uint32_t>(number)) : std::nullopt;
}

std::optional<Shortcut> decodeCombo(const QJsonObject &object)
{
    const auto keyCode = unsignedAt(object, keyCodeKey);
    const auto modifiers = unsignedAt(object, modifiersKey);
    const QJsonValue key = object.value(nameKey);
    if (!keyCode || !modifiers || !key.isString()) {
        return std::nullopt;
    }
    return Shortcut::combo(*keyCode, *modifiers, key.toString());
}

std::optional<Shortcut> decodeModifier(const QJsonObject &object)
{
    const QString rawValue = object.value(firstValueKey).toString();
    const auto *const found =
        std::ranges::find_if(modifierKeys(), [&](const ModifierKeyInfo &key) { return key.rawValue == rawValue; });
    return found == modifierKeys().end() ? std::nullopt : std::optional(Shortcut::modifier(found->key));
}

} // namespace

std::optional<Shortcut> Shortcut::fromJson(const QByteArray &json)
{
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    // Exactly one of the two keys; other keys are ignored.
    if (object.contains(comboKey) == object.contains(modifierKeyName)) {
        return std::nullopt;
    }
    return object.contains(comboKey) ? decodeCombo(object.value(comboKey).toObject())
                                     : decodeModifier(object.value(modifierKeyName).toObject());
}

QByteArray Shortcut::toJson() const
{
    QJsonObject object;
    if (const Combo *combo = asCombo()) {
        object.insert(comboKey, QJsonObject{{keyCodeKey, qint64{combo->keyCode}},
                                            {modifiersKey, qint64{combo->modifiers}},
                                            {nameKey, combo->key}});
    } else {
        object.insert(modifierKeyName, QJsonObject{{firstValueKey, info(*asModifier()).rawValue.toString()}});
    }
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}
