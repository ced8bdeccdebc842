// SPDX-License-Identifier: MIT
#include "platform/freedesktop/IniPreferences.h"

#include <QFile>
#include <QStandardPaths>
#include <QTemporaryFile>

using namespace Qt::StringLiterals;

namespace {

// Qt tells the rights of the user apart from those of the owner, who is the same.
constexpr auto ownerOnly = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;

/// Another object of this process may have read the file before, and only that one was told: a copy is read anew.
bool isDamaged(const QString &path)
{
    QFile original(path);
    QTemporaryFile copy;
    if (!original.open(QFile::ReadOnly) || !copy.open()) {
        return false;
    }
    copy.write(original.readAll());
    copy.close();
    const QSettings anew(copy.fileName(), QSettings::IniFormat);
    anew.allKeys(); // a section is parsed when something of it is asked for
    return anew.status() == QSettings::FormatError;
}

} // namespace

IniPreferences::IniPreferences(const QString &path) : m_settings(path, QSettings::IniFormat) {}

QString IniPreferences::defaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/Quillo/Quillo.conf"_s;
}

Finding IniPreferences::examine() const
{
    const QString subject = Finding::tr("Preferences");
    sync();
    const QString path = m_settings.fileName();
    if (m_settings.status() == QSettings::AccessError) {
        return {subject, Finding::Level::Note, Finding::tr("%1 can't be read or written").arg(path),
                Finding::tr("make it yours: chown and chmod u+rw")};
    }
    if (isDamaged(path)) {
        return {subject, Finding::Level::Note,
                Finding::tr("%1 is damaged: what can't be read counts as not set").arg(path),
                Finding::tr("mend the file or move it away")};
    }
    return {subject, Finding::Level::Good, path};
}

std::optional<QByteArray> IniPreferences::data(const QString &key) const
{
    const QVariant stored = value(key);
    return stored.typeId() == QMetaType::QByteArray ? std::optional(stored.toByteArray()) : std::nullopt;
}

std::optional<QString> IniPreferences::string(const QString &key) const
{
    const QVariant stored = value(key);
    return stored.typeId() == QMetaType::QString ? std::optional(stored.toString()) : std::nullopt;
}

bool IniPreferences::boolean(const QString &key) const
{
    const QString stored = value(key).toString();
    return stored == u"true" || stored == u"1";
}

void IniPreferences::setData(const QString &key, const QByteArray &value)
{
    write(key, value);
}

void IniPreferences::setString(const QString &key, const QString &value)
{
    write(key, value);
}

void IniPreferences::setBoolean(const QString &key, bool value)
{
    write(key, value);
}

void IniPreferences::remove(const QString &key)
{
    m_settings.remove(key);
    sync();
}

bool IniPreferences::isSaved() const
{
    // A status stays what it once was; this one is new, and shares what is still to be written.
    QSettings anew(m_settings.fileName(), QSettings::IniFormat);
    sync();
    anew.sync();
    return anew.status() != QSettings::AccessError;
}

QVariant IniPreferences::value(const QString &key) const
{
    sync();
    return m_settings.value(key);
}

void IniPreferences::write(const QString &key, const QVariant &value)
{
    m_settings.setValue(key, value);
    sync();
}

void IniPreferences::sync() const
{
    // QSettings would wait half a minute for a lock that a computer left which shares this folder, and forever for a
    // program that hangs. The file is replaced in one step, so that nobody reads half of it without the lock, too.
    QFile::remove(m_settings.fileName() + u".lock"_s);
    m_settings.sync();
    QFile file(m_settings.fileName());
    if (file.exists() && (file.permissions() & ~ownerOnly) != 0) {
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    }
}
