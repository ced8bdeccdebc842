// SPDX-License-Identifier: MIT
#include "support/Session.h"

#include "support/Await.h"

#include <QDir>
#include <QFile>

#include <stdexcept>

using namespace Qt::StringLiterals;

Session::Session(Keyring keyring)
{
    for (const QString &folder : {runtimeFolder(), configFolder(), dataFolder()}) {
        QDir().mkpath(folder);
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    QProcessEnvironment own = environment();
    own.remove(u"DISPLAY"_s); // what the bus starts shall not come up on the display of whoever runs the test
    m_bus = std::make_unique<ChildProcess>(u"dbus-daemon"_s,
                                           QStringList{u"--session"_s, u"--nofork"_s, u"--print-address"_s}, own);
    m_busAddress = m_bus->readLine();
    if (keyring == Keyring::Unlocked) {
        openKeyring();
    }
}

void Session::openKeyring()
{
    m_keyring = std::make_unique<ChildProcess>(u"gnome-keyring-daemon"_s,
                                               QStringList{u"--foreground"_s, u"--unlock"_s, u"--components=secrets"_s},
                                               environment());
    m_keyring->process().write("password");
    m_keyring->process().closeWriteChannel();
    // The daemon takes its name first and opens its collection a little later; asking for the name without its being
    // there would make the bus start a second, locked one.
    const bool isOpen = await([this] { return ownsName() && holdsSecrets(); });
    if (!isOpen) {
        throw std::runtime_error("the keyring did not open");
    }
}

void Session::lockKeyring() const
{
    run(u"dbus-send"_s,
        {u"--session"_s, u"--print-reply"_s, u"--dest=org.freedesktop.secrets"_s, u"/org/freedesktop/secrets"_s,
         u"org.freedesktop.Secret.Service.Lock"_s, u"array:objpath:/org/freedesktop/secrets/collection/login"_s},
        environment());
}

void Session::unlockKeyring()
{
    m_keyring->terminate();
    openKeyring();
}

bool Session::ownsName() const
{
    return run(u"dbus-send"_s,
               {u"--session"_s, u"--print-reply"_s, u"--dest=org.freedesktop.DBus"_s, u"/"_s,
                u"org.freedesktop.DBus.NameHasOwner"_s, u"string:org.freedesktop.secrets"_s},
               environment())
        .contains("boolean true");
}

bool Session::holdsSecrets() const
{
    try {
        run(u"secret-tool"_s, {u"store"_s, u"--label=probe"_s, u"probe"_s, u"probe"_s}, environment(), "probe");
        run(u"secret-tool"_s, {u"clear"_s, u"probe"_s, u"probe"_s}, environment());
        return true;
    } catch (const std::runtime_error &) {
        return false;
    }
}

QProcessEnvironment Session::environment(const QProcessEnvironment &base) const
{
    QProcessEnvironment environment = base;
    environment.insert(u"HOME"_s, m_folder.path());
    environment.insert(u"XDG_RUNTIME_DIR"_s, runtimeFolder());
    environment.insert(u"XDG_CONFIG_HOME"_s, configFolder());
    environment.insert(u"XDG_DATA_HOME"_s, dataFolder());
    environment.insert(u"XDG_CACHE_HOME"_s, m_folder.filePath(u"cache"_s));
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, m_busAddress);
    for (const auto &name : {u"TMPDIR"_s, u"WAYLAND_DISPLAY"_s, u"QUILLO_PLATFORM"_s, u"XDG_CURRENT_DESKTOP"_s}) {
        environment.remove(name);
    }
    return environment;
}

void Session::use() const
{
    const QProcessEnvironment wanted = environment();
    for (const QString &name : wanted.keys()) {
        qputenv(qPrintable(name), wanted.value(name).toLocal8Bit());
    }
}
