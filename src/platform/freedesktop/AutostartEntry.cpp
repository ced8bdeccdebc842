// SPDX-License-Identifier: MIT
#include "platform/freedesktop/AutostartEntry.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <glib.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

const QString entryName = u"autostart/app.quillo.Quillo.desktop"_s;

constexpr auto group = G_KEY_FILE_DESKTOP_GROUP;
constexpr auto hiddenKey = G_KEY_FILE_DESKTOP_KEY_HIDDEN;
constexpr auto gnomeKey = "X-GNOME-Autostart-enabled"; // written by the switches of GNOME, MATE and Cinnamon

struct Free {
    void operator()(GKeyFile *file) const { g_key_file_free(file); }
};
using KeyFile = std::unique_ptr<GKeyFile, Free>;

/// Null when the file can't be read as an entry.
KeyFile load(const QString &path)
{
    KeyFile file(g_key_file_new());
    const auto flags = static_cast<GKeyFileFlags>(G_KEY_FILE_KEEP_COMMENTS | G_KEY_FILE_KEEP_TRANSLATIONS);
    const bool isLoaded =
        g_key_file_load_from_file(file.get(), QFile::encodeName(path).constData(), flags, nullptr) == TRUE &&
        g_key_file_has_group(file.get(), group) == TRUE;
    return isLoaded ? std::move(file) : nullptr;
}

/// Whether the desktop that runs is one that the entry is for.
bool isForThisDesktop(GKeyFile *file)
{
    const QStringList desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':', Qt::SkipEmptyParts);
    const auto names = [&](const char *key) {
        gsize count = 0;
        gchar **list = g_key_file_get_string_list(file, group, key, &count, nullptr);
        bool isNamed = false;
        for (gsize place = 0; place < count; ++place) {
            isNamed = isNamed || desktops.contains(QString::fromUtf8(list[place]));
        }
        g_strfreev(list);
        return isNamed;
    };
    const bool isRestricted = g_key_file_has_key(file, group, G_KEY_FILE_DESKTOP_KEY_ONLY_SHOW_IN, nullptr) == TRUE;
    return isRestricted ? names(G_KEY_FILE_DESKTOP_KEY_ONLY_SHOW_IN) : !names(G_KEY_FILE_DESKTOP_KEY_NOT_SHOW_IN);
}

/// An absent key counts as `absent`.
bool boolean(GKeyFile *file, const char *key, bool absent)
{
    return g_key_file_has_key(file, group, key, nullptr) == TRUE
               ? g_key_file_get_boolean(file, group, key, nullptr) == TRUE
               : absent;
}

/// The quoting of the Desktop Entry Specification, and "%%" for a percent sign.
QByteArray quoted(QString program)
{
    for (const QChar special : {u'\\', u'"', u'`', u'$'}) {
        program.replace(special, u"\\"_s + special);
    }
    program.replace(u'%', u"%%"_s);
    return (u'"' + program + u'"').toUtf8();
}

bool save(GKeyFile *file, const QString &path)
{
    return QDir().mkpath(QFileInfo(path).path()) &&
           g_key_file_save_to_file(file, QFile::encodeName(path).constData(), nullptr) == TRUE;
}

} // namespace

AutostartEntry::AutostartEntry(QString program)
    : m_program(std::move(program)),
      m_userFile(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u'/' + entryName)
{
}

LoginItem::Status AutostartEntry::status() const
{
    // The user's entry comes first and stands for all others of the name.
    const KeyFile file = load(QStandardPaths::locate(QStandardPaths::GenericConfigLocation, entryName));
    const bool isOn = file && !boolean(file.get(), hiddenKey, false) && boolean(file.get(), gnomeKey, true) &&
                      isForThisDesktop(file.get());
    return isOn ? Status::Enabled : Status::NotRegistered;
}

bool AutostartEntry::registerApp()
{
    KeyFile file = load(m_userFile);
    if (!file) {
        file.reset(g_key_file_new());
        g_key_file_set_string(file.get(), group, G_KEY_FILE_DESKTOP_KEY_TYPE, G_KEY_FILE_DESKTOP_TYPE_APPLICATION);
        g_key_file_set_string(file.get(), group, G_KEY_FILE_DESKTOP_KEY_NAME, "Quillo");
        g_key_file_set_string(file.get(), group, G_KEY_FILE_DESKTOP_KEY_ICON, "app.quillo.Quillo");
        g_key_file_set_boolean(file.get(), group, G_KEY_FILE_DESKTOP_KEY_TERMINAL, FALSE);
    }
    g_key_file_set_string(file.get(), group, G_KEY_FILE_DESKTOP_KEY_EXEC, quoted(m_program).constData());
    for (const char *key :
         {hiddenKey, gnomeKey, G_KEY_FILE_DESKTOP_KEY_ONLY_SHOW_IN, G_KEY_FILE_DESKTOP_KEY_NOT_SHOW_IN}) {
        g_key_file_remove_key(file.get(), group, key, nullptr);
    }
    return save(file.get(), m_userFile);
}

bool AutostartEntry::unregisterApp()
{
    if (QFile::exists(m_userFile) && !QFile::remove(m_userFile)) {
        return false;
    }
    if (status() == Status::NotRegistered) {
        return true;
    }
    const KeyFile hiding(g_key_file_new());
    g_key_file_set_string(hiding.get(), group, G_KEY_FILE_DESKTOP_KEY_TYPE, G_KEY_FILE_DESKTOP_TYPE_APPLICATION);
    g_key_file_set_string(hiding.get(), group, G_KEY_FILE_DESKTOP_KEY_NAME, "Quillo");
    g_key_file_set_boolean(hiding.get(), group, hiddenKey, TRUE);
    return save(hiding.get(), m_userFile);
}
