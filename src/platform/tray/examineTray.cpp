// SPDX-License-Identifier: MIT
#include "platform/tray/examineTray.h"

#include <QDBusInterface>

using namespace Qt::StringLiterals;

Finding examineTray(const QDBusConnection &bus, bool hasOtherTray)
{
    const QString subject = Finding::tr("Tray");
    const QString watcher = u"org.kde.StatusNotifierWatcher"_s;
    const QDBusInterface host(watcher, u"/StatusNotifierWatcher"_s, watcher, bus);
    if (host.property("IsStatusNotifierHostRegistered").toBool()) {
        return {subject, Finding::Level::Good, u"StatusNotifierItem"_s};
    }
    if (hasOtherTray) {
        return {subject, Finding::Level::Good, u"XEmbed"_s};
    }
    return {subject, Finding::Level::Note, Finding::tr("none on this desktop"),
            Finding::tr(
                "start quillo again for the history, use its commands (quillo --help), or add a tray to the panel")};
}
