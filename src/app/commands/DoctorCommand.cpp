// SPDX-License-Identifier: MIT
#include "app/commands/DoctorCommand.h"

#include "app/commands/CommandLine.h"
#include "app/commands/Output.h"
#include "app/commands/RunningInstance.h"
#include "app/model/StoredShortcut.h"
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
using Use = StoredShortcut::Use;

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

const QString chooseAnother = u"choose another one in the settings"_s;

/// What the running program says of its shortcuts, which nobody else can try while it holds them.
QList<Finding> heldHotKeyFindings()
{
    const QString subject = u"Hot keys"_s;
    const auto answer = runningInstance().status();
    const auto *const status = std::get_if<QVariantMap>(&answer);
    if (status == nullptr) {
        return {{subject, Level::Problem, u"the running Quillo does not answer"_s, u"end it and start it again"_s}};
    }
    QList<Finding> findings;
    for (const auto &[use, key] :
         {std::pair(Use::Dictation, u"shortcutError"_s), std::pair(Use::Group, u"groupShortcutError"_s),
          std::pair(Use::History, u"historyShortcutError"_s)}) {
        if (const QVariant error = status->value(key); error.isValid()) {
            findings.append({u"Hot key"_s, levelOfMissing(use), error.toString(), chooseAnother});
        }
    }
    if (findings.isEmpty()) {
        findings.append({subject, Level::Good, u"held by the running Quillo"_s});
    }
    return findings;
}

Finding busFinding()
{
    const QString subject = u"Session bus"_s;
    if (!QDBusConnection::sessionBus().isConnected()) {
        return {subject, Level::Note, u"none: no tray item, no keyring, no commands"_s,
                u"log in through a desktop session, or start one with dbus-run-session"_s};
    }
    return {subject, Level::Good,
            runningInstance().isThere() ? u"there; Quillo is running"_s : u"there; Quillo isn't running"_s};
}

/// Whether the shortcuts can be had.
QList<Finding> hotKeyFindings(X11Backend &x11, const Preferences &preferences)
{
    if (runningInstance().isThere()) {
        return heldHotKeyFindings();
    }
    QList<Finding> findings;
    for (const Use use : {Use::Dictation, Use::Group, Use::History}) {
        const Shortcut shortcut = StoredShortcut::read(preferences, use);
        const Shortcut::Combo *combo = shortcut.asCombo();
        if (combo == nullptr) {
            continue; // raw keys, whose line says whether they can be had
        }
        const bool isFree =
            CarbonHotKey::create(x11.hotKeys(), combo->keyCode, combo->modifiers, [](bool) {}) != nullptr;
        findings.append(isFree ? Finding{u"Hot key"_s, Level::Good, shortcut.label() + u" is free"_s}
                               : Finding{u"Hot key"_s, levelOfMissing(use),
                                         shortcut.label() + u" is taken by another program"_s, chooseAnother});
    }
    return findings;
}

X11Examination displayFindings(Services &services)
{
    if (const auto refusal = DisplayChoice::refusal()) {
        return {{{u"Display server"_s, Level::Problem, *refusal, u"log in to an X11 session"_s}}};
    }
    const Shortcut dictation = StoredShortcut::read(services.preferences, Use::Dictation);
    const bool isSingleKey = dictation.asModifier() != nullptr;
    X11Examination display =
        examineX11(isSingleKey ? DictationShortcutKind::SingleKey : DictationShortcutKind::Combination);
    QString whyNot;
    const auto x11 = X11Backend::create(services.clock, TerminalClasses::defaults(), &whyNot);
    if (x11) {
        display.findings.append(hotKeyFindings(*x11, services.preferences));
    } else {
        display.findings.append({u"Hot keys"_s, Level::Problem, u"not tried: "_s + whyNot});
    }
    return display;
}

QCoro::Task<Finding> backendFinding(Services &services)
{
    const QString subject = u"Backend"_s;
    const auto address = ApiClient::baseUrl(services.preferences, services.packagedInfo);
    if (!address) {
        co_return Finding{subject, Level::Problem, u"no usable address"_s,
                          u"set apiURL in %1"_s.arg(IniPreferences::defaultPath())};
    }
    if (address->scheme() != u"https" && address->scheme() != u"http") {
        co_return Finding{subject, Level::Problem, address->toString() + u" begins neither with https:// nor http://"_s,
                          u"set apiURL in %1"_s.arg(IniPreferences::defaultPath())};
    }
    const QUrl url = ApiClient::endpoint(*address, u"/v1/balance"_s);
    HttpTransport transport(backendPatience);
    HttpRequest request{"GET", url};
    const std::optional<HttpResponse> response = co_await transport.perform(std::move(request));
    const QString where = address->toString(QUrl::RemoveUserInfo);
    if (!response) {
        co_return Finding{subject, Level::Problem, where + u" does not answer"_s,
                          u"check the network; a server of your own is started with quillo-backend"_s};
    }
    // Without a credential the backend of this program answers 401 with an error document.
    constexpr int unauthorized = 401;
    const bool isOurs = response->status == unauthorized && QJsonDocument::fromJson(response->body).isObject();
    co_return isOurs ? Finding{subject, Level::Good, where + u" answers"_s}
                     : Finding{subject, Level::Problem,
                               u"%1 answers %2, which no Quillo backend does"_s.arg(where).arg(response->status),
                               u"check apiURL in %1"_s.arg(IniPreferences::defaultPath())};
}

Finding consentFinding(const AIConsent &consent)
{
    return consent.isCurrent()
               ? Finding{u"Consent"_s, Level::Good, u"given"_s}
               : Finding{u"Consent"_s, Level::Note, u"not given: dictation stays off"_s, u"start Quillo and agree"_s};
}

Finding fontFinding()
{
    Paper::registerFonts(ResourceInfo::defaultFolder());
    if (!QFontDatabase::families().contains(u"Liberation Sans")) {
        return {u"Fonts"_s, Level::Note, u"Liberation Sans is missing: another face stands in"_s,
                u"install fonts-liberation"_s};
    }
    return {u"Fonts"_s, Level::Good,
            Paper::hasFraunces() ? u"Liberation Sans, Fraunces"_s
                                 : u"Liberation Sans; the system serif stands in for Fraunces"_s};
}

void print(const Finding &finding)
{
    const QString mark = finding.level == Level::Good   ? u"ok"_s
                         : finding.level == Level::Note ? u"note"_s
                                                        : u"MISSING"_s;
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
    Output::print(isFit ? u"\nDictation can work here.\n"_s : u"\nDictation can't work here yet.\n"_s);
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
