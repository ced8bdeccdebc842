// SPDX-License-Identifier: MIT
#include "app/start/QuilloApp.h"

#include "app/commands/ActCommand.h"
#include "app/commands/CommandLine.h"
#include "app/commands/DoctorCommand.h"
#include "app/commands/Output.h"
#include "app/commands/RecoverHistoryCommand.h"
#include "app/commands/RunningInstance.h"
#include "app/commands/StatusCommand.h"
#include "app/commands/TranscribeCommand.h"
#include "app/remote/RemoteControl.h"
#include "app/start/Composition.h"
#include "app/start/DisplayChoice.h"
#include "app/start/TerminationSignals.h"
#include "app/start/forbidCoreDumps.h"
#include "app/start/speakPreferredLanguage.h"
#include "platform/Platform.h"

#include <QApplication>
#include <QCoreApplication>
#include <QIcon>
#include <QQuickWindow>

using namespace Qt::StringLiterals;

// Called for every application object that the program makes.
Q_COREAPP_STARTUP_FUNCTION(speakPreferredLanguage)

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(Start)
};

/// What remains of the program's arguments is none of Qt's.
struct Arguments {
    int count = 1;
    char **values;
};

/// A second start shows the history of the program that runs.
int bringForward(const QDBusConnection &bus)
{
    const auto failure = RunningInstance(bus).bringForward();
    return failure ? Output::fail(failure->sentence, failure->status) : ExitStatus::done;
}

int start(Arguments arguments)
{
    if (DisplayChoice::refusal()) {
        // A program that runs can be reopened from where another could not be started, such as a bare terminal.
        const QCoreApplication application(arguments.count, arguments.values);
        const QDBusConnection bus = QDBusConnection::sessionBus();
        return RunningInstance(bus).isThere() ? bringForward(bus)
                                              : Output::fail(*DisplayChoice::refusal(), ExitStatus::failed);
    }
    DisplayChoice::prepare();
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QQuickWindow::setDefaultAlphaBuffer(true);

    QApplication application(arguments.count, arguments.values); // the tray's own menu is a widget
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setWindowIcon(QIcon(u":/quillo/app.quillo.Quillo.svg"_s));

    const QDBusConnection bus = QDBusConnection::sessionBus();
    RemoteControl remote(bus);
    switch (remote.claim()) {
    case RemoteControl::Claim::IsSecond:
        return bringForward(bus);
    case RemoteControl::Claim::NoBus:
        Output::fail(
            Words::tr(
                "There is no session bus: no tray item but XEmbed's, no keyring, and commands can't reach Quillo."),
            ExitStatus::failed);
        break;
    case RemoteControl::Claim::IsFirst:
        break;
    }

    const TerminationSignals signals([] { QCoreApplication::quit(); });
    QString whyNot;
    const auto composition = Composition::create(&whyNot);
    if (!composition) {
        return Output::fail(whyNot, ExitStatus::failed);
    }
    composition->start();
    // What has been asked of the program meanwhile is served by the event loop, after the launch.
    remote.setTarget(composition->model(), composition->platform().application);
    const int status = QApplication::exec();
    remote.clearTarget();
    return status;
}

int doctor(Arguments arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen"); // it looks at the display without using it
    const QGuiApplication application(arguments.count, arguments.values);
    return DoctorCommand::run();
}

CommandLine::Request parse(const QStringList &words, Arguments arguments)
{
    if (words.isEmpty()) {
        return CommandLine::Start{};
    }
    const QCoreApplication application(arguments.count, arguments.values); // for the texts
    return CommandLine::parse(words, QCoreApplication::applicationVersion());
}

template <typename... Cases> struct Overloaded : Cases... {
    using Cases::operator()...;
};
template <typename... Cases> Overloaded(Cases...) -> Overloaded<Cases...>;

} // namespace

int QuilloApp::run(int argc, char *argv[])
{
    forbidCoreDumps();
    QCoreApplication::setApplicationName(u"Quillo"_s);
    QCoreApplication::setApplicationVersion(u"" QUILLO_VERSION ""_s);
    QGuiApplication::setDesktopFileName(u"app.quillo.Quillo"_s);

    QStringList words;
    for (int place = 1; place < argc; ++place) {
        words.append(QString::fromLocal8Bit(argv[place]));
    }
    Arguments own{1, argv};
    return std::visit(Overloaded{
                          [&](const CommandLine::Start &) { return start(own); },
                          [&](const CommandLine::Print &print) {
                              Output::print(print.text);
                              return ExitStatus::done;
                          },
                          [&](const CommandLine::Act &act) {
                              const QCoreApplication application(own.count, own.values);
                              return ActCommand::run(act.action);
                          },
                          [&](const CommandLine::Status &status) {
                              const QCoreApplication application(own.count, own.values);
                              return StatusCommand::run(status.asJson);
                          },
                          [&](const CommandLine::Transcribe &transcribe) {
                              const QCoreApplication application(own.count, own.values);
                              return TranscribeCommand::run(transcribe.path);
                          },
                          [&](const CommandLine::Doctor &) { return doctor(own); },
                          [&](const CommandLine::RecoverHistory &recover) {
                              const QCoreApplication application(own.count, own.values);
                              return RecoverHistoryCommand::run(recover.path);
                          },
                          [&](const CommandLine::Mistake &mistake) {
                              const QCoreApplication application(own.count, own.values);
                              return Output::fail(Words::tr("%1 See: quillo --help").arg(mistake.text),
                                                  ExitStatus::usage);
                          },
                      },
                      parse(words, own));
}
