// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusReply>
#include <QString>
#include <QVariantMap>

/// What the command line has the running program do. Each prints one line on standard error when it can't, and returns
/// the exit status (ExitStatus). They block until the program has answered.
namespace InstanceCommands {

int act(const QDBusConnection &bus, const QString &action);
int printStatus(const QDBusConnection &bus, bool asJson);
/// Brings the running program forward.
int activate(const QDBusConnection &bus);

/// What the running program says of itself; invalid when none answers. Prints nothing.
QDBusReply<QVariantMap> fetchStatus(const QDBusConnection &bus);

} // namespace InstanceCommands
