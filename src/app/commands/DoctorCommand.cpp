// SPDX-License-Identifier: MIT
#include "app/commands/DoctorCommand.h"

#include "app/commands/CommandLine.h"
#include "app/commands/Output.h"
#include "app/commands/RunningInstance.h"
#include "app/model/Shortcuts.h"
#include "app/start/DisplayChoice.h"
#include "app/start/Services.h"
#include "app/start/TerminationSignals.h"
#include "audio/AudioRecorder.h"
#include "platform/Finding.h"
#include "platform/audio/examineSound.h"
#include "platform/freedesktop/examineSecretService.h"
#include "platform/tray/examineTray.h"
#include "platform/x11/X11Backend.h"
#include "platform/x11/connection/examineX11.h"
#include "platform/x11/windows/TerminalClasses.h"
#include "service/HttpTransport.h"
#include "shortcuts/CarbonHotKey.h"
#include "store/GroupStore.h"
#include "store/TranscriptionStore.h"
#include "ui/style/Paper.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDir>
#include <QFontDatabase>
#include <QJsonDocument>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

using Level = Finding::Level;
using Use = Shortcuts::Use;

constexpr auto backendPatience = std::chrono::seconds(10);

RunningInstance runningInstance()
{
    return RunningInstance(QDBusConnection::sessionBus());
}

/// Without its shortcut no dictation begins; the others are a convenience.
Level levelOfMissing(Use use)
{
    return use == Use::Dictation ? Level::Problem : Level::Note;
}

QString chooseAnother()
{
    return Finding::tr("choose another one in the settings");
}

/// What the running program says of its shortcuts, which nobody else can try while it holds them.
QList<Finding> heldHotKeyFindings()
{
    const QString subject = Finding::tr("Hot keys");
    const auto answer = runningInstance().status();
    const auto *const status = std::get_if<QVariantMap>(&answer);
    if (status == nullptr) {
        return {{subject, Level::Problem, Finding::tr("the running Quillo does not answer"),
                 Finding::tr("end it and start it again")}};
    }
    QList<Finding> findings;
    for (const auto &[use, key] :
         {std::pair(Use::Dictation, u"shortcutError"_s), std::pair(Use::Group, u"groupShortcutError"_s),
          std::pair(Use::History, u"historyShortcutError"_s)}) {
        if (const QVariant error = status->value(key); error.isValid()) {
            findings.append({Finding::tr("Hot key"), levelOfMissing(use), error.toString(), chooseAnother()});
        }
    }
    if (findings.isEmpty()) {
        findings.append({subject, Level::Good, Finding::tr("held by the running Quillo")});
    }
    return findings;
}

Finding busFinding()
{
    const QString subject = Finding::tr("Session bus");
    if (!QDBusConnection::sessionBus().isConnected()) {
        return {subject, Level::Note, Finding::tr("none: no tray item, no keyring, no commands"),
                Finding::tr("log in through a desktop session, or start one with dbus-run-session")};
    }
    return {subject, Level::Good,
            runningInstance().isThere() ? Finding::tr("there; Quillo is running")
                                        : Finding::tr("there; Quillo isn't running")};
}

/// Whether the shortcuts can be had.
QList<Finding> hotKeyFindings(X11Backend &x11, const Preferences &preferences)
{
    if (runningInstance().isThere()) {
        return heldHotKeyFindings();
    }
    QList<Finding> findings;
    for (const Use use : {Use::Dictation, Use::Group, Use::History}) {
        const Shortcut shortcut = Shortcuts::stored(preferences, use);
        const Shortcut::Combo *combo = shortcut.asCombo();
        if (combo == nullptr) {
            continue; // raw keys, whose line says whether they can be had
        }
        const bool isFree =
            CarbonHotKey::create(x11.hotKeys(), combo->keyCode, combo->modifiers, [](bool) {}) != nullptr;
        findings.append(
            isFree ? Finding{Finding::tr("Hot key"), Level::Good, Finding::tr("%1 is free").arg(shortcut.label())}
                   : Finding{Finding::tr("Hot key"), levelOfMissing(use),
                             Finding::tr("%1 is taken by another program").arg(shortcut.label()), chooseAnother()});
    }
    return findings;
}

X11Examination displayFindings(Services &services)
{
    if (const auto refusal = DisplayChoice::refusal()) {
        return {{{Finding::tr("Display server"), Level::Problem, *refusal, Finding::tr("log in to an X11 session")}}};
    }
    const Shortcut dictation = Shortcuts::stored(services.preferences, Use::Dictation);
    const bool isSingleKey = dictation.asModifier() != nullptr;
    X11Examination display =
        examineX11(isSingleKey ? DictationShortcutKind::SingleKey : DictationShortcutKind::Combination);
    QString whyNot;
    const auto x11 = X11Backend::create(services.clock, TerminalClasses::defaults(), &whyNot);
    if (x11) {
        display.findings.append(hotKeyFindings(*x11, services.preferences));
    } else {
        display.findings.append({Finding::tr("Hot keys"), Level::Problem, Finding::tr("not tried: %1").arg(whyNot)});
    }
    return display;
}

QCoro::Task<Finding> backendFinding(Services &services)
{
    const QString subject = Finding::tr("Backend");
    const auto address = ApiClient::baseUrl(services.preferences, services.packagedInfo);
    if (!address) {
        co_return Finding{subject, Level::Problem, Finding::tr("no usable address"),
                          Finding::tr("set apiURL in %1").arg(IniPreferences::defaultPath())};
    }
    if (address->scheme() != u"https" && address->scheme() != u"http") {
        co_return Finding{subject, Level::Problem,
                          Finding::tr("%1 begins neither with https:// nor http://").arg(address->toString()),
                          Finding::tr("set apiURL in %1").arg(IniPreferences::defaultPath())};
    }
    const QUrl url = ApiClient::endpoint(*address, u"/v1/balance"_s);
    HttpTransport transport(backendPatience);
    HttpRequest request{"GET", url};
    const std::optional<HttpResponse> response = co_await transport.perform(std::move(request));
    const QString where = address->toString(QUrl::RemoveUserInfo);
    if (!response) {
        co_return Finding{subject, Level::Problem, Finding::tr("%1 does not answer").arg(where),
                          Finding::tr("check the network; a server of your own is started with quillo-backend")};
    }
    // Without a credential the backend of this program answers 401 with an error document.
    constexpr int unauthorized = 401;
    const bool isOurs = response->status == unauthorized && QJsonDocument::fromJson(response->body).isObject();
    co_return isOurs
        ? Finding{subject, Level::Good, Finding::tr("%1 answers").arg(where)}
        : Finding{subject, Level::Problem,
                  Finding::tr("%1 answers %2, which no Quillo backend does").arg(where).arg(response->status),
                  Finding::tr("check apiURL in %1").arg(IniPreferences::defaultPath())};
}

Finding consentFinding(const AIConsent &consent)
{
    return consent.isCurrent()
               ? Finding{Finding::tr("Consent"), Level::Good, Finding::tr("given")}
               : Finding{Finding::tr("Consent"), Level::Note, Finding::tr("not given: dictation stays off"),
                         Finding::tr("start Quillo and agree")};
}

Finding fontFinding()
{
    Paper::registerFonts(ResourceInfo::defaultFolder());
    if (!QFontDatabase::families().contains(u"Liberation Sans")) {
        return {Finding::tr("Fonts"), Level::Note, Finding::tr("Liberation Sans is missing: another face stands in"),
                Finding::tr("install fonts-liberation")};
    }
    return {Finding::tr("Fonts"), Level::Good,
            Paper::hasFraunces() ? u"Liberation Sans, Fraunces"_s
                                 : Finding::tr("Liberation Sans; the system serif stands in for Fraunces")};
}

void print(const Finding &finding)
{
    const QString mark = finding.level == Level::Good   ? Finding::tr("ok")
                         : finding.level == Level::Note ? Finding::tr("note")
                                                        : Finding::tr("MISSING");
    QString line = u"%1 %2 %3\n"_s.arg(mark, -8).arg(finding.subject + u':', -18).arg(finding.text);
    if (!finding.remedy.isEmpty()) {
        line += u"%1 → %2\n"_s.arg(u""_s, 27).arg(finding.remedy);
    }
    Output::print(line);
}

QCoro::Task<void> examine(Services &services, QString recording)
{
    bool isFit = true;
    const auto tell = [&isFit](const QList<Finding> &findings) {
        for (const Finding &finding : findings) {
            print(finding);
            isFit = isFit && finding.level != Level::Problem;
        }
    };
    const X11Examination display = displayFindings(services);
    tell(display.findings);
    tell({busFinding(), examineTray(QDBusConnection::sessionBus(), display.hasXEmbedTray)});
    const AudioSettings settings = AudioRecorder::settings();
    const QList<Finding> sound = co_await examineSound(services.clock, recording, settings);
    tell(sound);
    tell({examineSecretService(), services.preferences.examine(),
          TranscriptionStore(services.files, services.clock).examine(),
          GroupStore(services.files, services.preferences, services.clock).examine(),
          consentFinding(services.consent)});
    const Finding backend = co_await backendFinding(services);
    tell({backend, fontFinding()});
    Output::print(isFit ? Finding::tr("\nDictation can work here.\n")
                        : Finding::tr("\nDictation can't work here yet.\n"));
    QCoreApplication::exit(isFit ? ExitStatus::done : ExitStatus::failed);
}

} // namespace

int DoctorCommand::run()
{
    Services services;
    const QString recording = AudioRecorder::newPath(services.files);
    const TerminationSignals signals([] { QCoreApplication::exit(ExitStatus::failed); });
    QTimer::singleShot(0, qApp, [&] { examine(services, recording); });
    const int status = QCoreApplication::exec();
    AudioRecorder::discard(recording); // a signal may have come before it was removed
    return status;
}
