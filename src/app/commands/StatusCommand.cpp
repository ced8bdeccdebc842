// SPDX-License-Identifier: MIT
#include "app/commands/StatusCommand.h"

#include "app/commands/CommandLine.h"
#include "app/commands/Output.h"
#include "app/commands/RunningInstance.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(Status)
};

QString yesOrNo(const QVariantMap &status, const QString &key)
{
    return status.value(key).toBool() ? Words::tr("yes") : Words::tr("no");
}

QString readable(const QVariantMap &status)
{
    const QString tokens = status.value(u"unmetered"_s).toBool()
                               ? Words::tr("unmetered")
                               : status.value(u"balance"_s, Words::tr("not known yet")).toString();
    QString text = status.value(u"status"_s).toString() + u'\n';
    const std::initializer_list<std::pair<QString, QString>> rows{
        {Words::tr("State"), status.value(u"state"_s).toString()},
        {Words::tr("Group"), status.value(u"group"_s, Words::tr("All entries")).toString()},
        {Words::tr("Tokens"), tokens},
        {Words::tr("Transcripts"), status.value(u"transcripts"_s).toString()},
        {Words::tr("Microphone"), yesOrNo(status, u"microphone"_s)},
        {Words::tr("Accessibility"), yesOrNo(status, u"accessibility"_s)},
        {Words::tr("Consent"), yesOrNo(status, u"consent"_s)}};
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

int StatusCommand::run(bool asJson)
{
    const auto answer = RunningInstance(QDBusConnection::sessionBus()).status();
    if (const auto *failure = std::get_if<RunningInstance::Failure>(&answer)) {
        return Output::fail(failure->sentence, failure->status);
    }
    const auto &status = std::get<QVariantMap>(answer);
    Output::print(asJson ? QString::fromUtf8(QJsonDocument(QJsonObject::fromVariantMap(status)).toJson())
                         : readable(status));
    return ExitStatus::done;
}
