// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Finding.h"
#include "platform/Preferences.h"

#include <QSettings>

/// Preferences in an INI file, group General, which only the owner can read. Byte values are written as @ByteArray(…).
class IniPreferences : public Preferences {
public:
    /// `path` is the file; it and its folder are made at the first write.
    explicit IniPreferences(const QString &path);

    /// Where the program's preferences are: Quillo/Quillo.conf in the user's configuration folder.
    static QString defaultPath();

    /// Whether the file can be used. One that can't is left as it is: defaults hold, and changes last until the end.
    Finding examine() const;

    std::optional<QByteArray> data(const QString &key) const override;
    std::optional<QString> string(const QString &key) const override;
    bool boolean(const QString &key) const override;
    void setData(const QString &key, const QByteArray &value) override;
    void setString(const QString &key, const QString &value) override;
    void setBoolean(const QString &key, bool value) override;
    void remove(const QString &key) override;
    bool isSaved() const override;

private:
    QVariant value(const QString &key) const;
    void write(const QString &key, const QVariant &value);
    void sync() const;

    mutable QSettings m_settings;
};
