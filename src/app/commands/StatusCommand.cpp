// SPDX-License-Identifier: MIT
#include "app/commands/StatusCommand.h"

#include "app/commands/CommandLine.h"
#include "app/commands/Output.h"
#include "app/commands/RunningInstance.h"

#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

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
