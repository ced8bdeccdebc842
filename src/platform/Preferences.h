// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// The per-user preferences store. Main thread only, and never kept waiting. A write is on disk when the call returns,
/// or else tried again with every later call. Reads see what another program has written to the store meanwhile.
class Preferences {
public:
    virtual ~Preferences() = default;

    /// Nothing when the key is absent or its value is of another type.
    virtual std::optional<QByteArray> data(const QString &key) const = 0;
    virtual std::optional<QString> string(const QString &key) const = 0;

    /// False when the key is absent or its value is no boolean.
    virtual bool boolean(const QString &key) const = 0;

    virtual void setData(const QString &key, const QByteArray &value) = 0;
    virtual void setString(const QString &key, const QString &value) = 0;
    virtual void setBoolean(const QString &key, bool value) = 0;
    virtual void remove(const QString &key) = 0;

    /// False while a change is in memory only.
    virtual bool isSaved() const = 0;
};
