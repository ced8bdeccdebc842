// SPDX-License-Identifier: MIT
#include "app/commands/InstanceCommands.h"

#include "app/commands/CommandLine.h"
#include "app/commands/Output.h"
#include "app/remote/RemoteControl.h"

#include <QDBusMessage>
#include <QJsonDocument>
#include <QJsonObject>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

const QString applicationInterface = u"org.freedesktop.Application"_s;

/// Nothing when a program answers; else its exit status, the reason printed.
std::optional<int> unreachable(const QDBusConnection &bus)
{
    if (!bus.isConnected()) {
        return Output::fail(u"There is no session bus (DBUS_SESSION_BUS_ADDRESS), so Quillo can't be reached."_s,
                            ExitStatus::notRunning);
    }
    if (!RemoteControl::isRunning(bus)) {
        return Output::fail(u"Quillo isn't running. Start it with: quillo"_s, ExitStatus::notRunning);
    }
    return std::nullopt;
}

int call(const QDBusConnection &bus, const QString &method, const QVariantList &arguments)
{
    if (const auto status = unreachable(bus)) {
        return *status;
    }
    QDBusMessage message =
        QDBusMessage::createMethodCall(RemoteControl::service(), RemoteControl::path(), applicationInterface, method);
    message.setArguments(arguments);
    message.setAutoStartService(false);
    const QDBusMessage reply = bus.call(message);
    if (reply.type() == QDBusMessage::ErrorMessage) {
        return Output::fail(u"Quillo refused: %1"_s.arg(reply.errorMessage()), ExitStatus::failed);
    }
    return ExitStatus::done;
}

QString yesOrNo(const QVariantMap &status, const QString &key)
{
    return status.value(key).toBool() ? u"yes"_s : u"no"_s;
}

QString readable(const QVariantMap &status)
{
    const QString tokens = status.value(u"unmetered"_s).toBool()
                               ? u"unmetered"_s
                               : status.value(u"balance"_s, u"not known yet"_s).toString();
    QString text = status.value(u"status"_s).toString() + u'\n';
    const std::initializer_list<std::pair<QString, QString>> rows{
        {u"State"_s, status.value(u"state"_s).toString()},
        {u"Group"_s, status.value(u"group"_s, u"All entries"_s).toString()},
        {u"Tokens"_s, tokens},
        {u"Transcripts"_s, status.value(u"transcripts"_s).toString()},
        {u"Microphone"_s, yesOrNo(status, u"microphone"_s)},
        {u"Accessibility"_s, yesOrNo(status, u"accessibility"_s)},
        {u"Consent"_s, yesOrNo(status, u"consent"_s)}};
    for (const auto &[name, value] : rows) {
        text += u"%1 %2\n"_s.arg(name + u':', -14).arg(value);
    }
    for (const QString &key : {u"shortcutError"_s, u"groupShortcutError"_s, u"historyShortcutError"_s}) {
        if (status.contains(key)) {
            text += status.value(key).toString() + u'\n';
        }
    }
    return text;
}

} // namespace

int InstanceCommands::act(const QDBusConnection &bus, const QString &action)
{
    return call(bus, u"ActivateAction"_s, {action, QVariantList(), QVariantMap()});
}

int InstanceCommands::activate(const QDBusConnection &bus)
{
    return call(bus, u"Activate"_s, {QVariantMap()});
}

QDBusReply<QVariantMap> InstanceCommands::fetchStatus(const QDBusConnection &bus)
{
    QDBusMessage message = QDBusMessage::createMethodCall(RemoteControl::service(), RemoteControl::path(),
                                                          RemoteControl::interface(), u"GetStatus"_s);
    message.setAutoStartService(false);
    return bus.call(message);
}

int InstanceCommands::printStatus(const QDBusConnection &bus, bool asJson)
{
    if (const auto status = unreachable(bus)) {
        return *status;
    }
    const QDBusReply<QVariantMap> reply = fetchStatus(bus);
    if (!reply.isValid()) {
        return Output::fail(u"Quillo did not answer: %1"_s.arg(reply.error().message()), ExitStatus::failed);
    }
    Output::print(asJson ? QString::fromUtf8(QJsonDocument(QJsonObject::fromVariantMap(reply.value())).toJson())
                         : readable(reply.value()));
    return ExitStatus::done;
}
