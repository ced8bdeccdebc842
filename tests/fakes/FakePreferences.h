// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Preferences.h"

#include <QMap>
#include <QVariant>

/// Preferences in memory.
class FakePreferences : public Preferences {
public:
    std::optional<QByteArray> data(const QString &key) const override { return typed<QByteArray>(key); }
    std::optional<QString> string(const QString &key) const override { return typed<QString>(key); }
    bool boolean(const QString &key) const override { return typed<bool>(key).value_or(false); }
    void setData(const QString &key, const QByteArray &value) override { values[key] = value; }
    void setString(const QString &key, const QString &value) override { values[key] = value; }
    void setBoolean(const QString &key, bool value) override { values[key] = value; }
    void remove(const QString &key) override { values.remove(key); }
    bool isSaved() const override { return !failsToWrite; }

    QMap<QString, QVariant> values;
    bool failsToWrite = false;

private:
    template <typename T> std::optional<T> typed(const QString &key) const
    {
        const QVariant value = values.value(key);
        return value.typeId() == qMetaTypeId<T>() ? std::optional(value.value<T>()) : std::nullopt;
    }
};
