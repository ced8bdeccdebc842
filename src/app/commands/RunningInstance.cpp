// SPDX-License-Identifier: MIT
#include "app/commands/RunningInstance.h"

#include "app/commands/CommandLine.h"
#include "app/remote/RemoteControl.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusReply>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(Instance)
};

QDBusMessage message(const QString &interface, const QString &method)
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(RemoteControl::service(), RemoteControl::path(), interface, method);
    message.setAutoStartService(false);
    return message;
}

} // namespace

bool RunningInstance::isThere() const
{
    return RemoteControl::isRunning(m_bus);
}

std::optional<RunningInstance::Failure> RunningInstance::unreachable() const
{
    if (!m_bus.isConnected()) {
        return Failure{Words::tr("There is no session bus (DBUS_SESSION_BUS_ADDRESS), so Quillo can't be reached."),
                       ExitStatus::notRunning};
    }
    if (!isThere()) {
        return Failure{Words::tr("Quillo isn't running. Start it with: quillo"), ExitStatus::notRunning};
    }
    return std::nullopt;
}

std::optional<RunningInstance::Failure> RunningInstance::call(const QString &method,
                                                              const QVariantList &arguments) const
{
    if (auto failure = unreachable()) {
        return failure;
    }
    QDBusMessage request = message(u"org.freedesktop.Application"_s, method);
    request.setArguments(arguments);
    const QDBusMessage reply = m_bus.call(request);
    if (reply.type() == QDBusMessage::ErrorMessage) {
        return Failure{Words::tr("Quillo refused: %1").arg(reply.errorMessage()), ExitStatus::failed};
    }
    return std::nullopt;
}

std::optional<RunningInstance::Failure> RunningInstance::perform(const QString &action) const
{
    return call(u"ActivateAction"_s, {action, QVariantList(), QVariantMap()});
}

std::optional<RunningInstance::Failure> RunningInstance::bringForward() const
{
    return call(u"Activate"_s, {QVariantMap()});
}

std::variant<QVariantMap, RunningInstance::Failure> RunningInstance::status() const
{
    if (auto failure = unreachable()) {
        return *std::move(failure);
    }
    const QDBusReply<QVariantMap> reply = m_bus.call(message(RemoteControl::interface(), u"GetStatus"_s));
    if (!reply.isValid()) {
        return Failure{Words::tr("Quillo did not answer: %1").arg(reply.error().message()), ExitStatus::failed};
    }
    return reply.value();
}
