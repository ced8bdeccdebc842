// SPDX-License-Identifier: MIT
#include "app/QuilloApp.h"

#include "app/AppDelegate.h"
#include "app/Composition.h"
#include "app/DisplayChoice.h"
#include "app/TerminationSignals.h"

#include <QApplication>
#include <QQuickWindow>
#include <QTimer>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

int fail(const QString &reason)
{
    std::fprintf(stderr, "quillo: %s\n", qPrintable(reason));
    return 1;
}

} // namespace

int QuilloApp::run(int argc, char *argv[])
{
    QCoreApplication::setApplicationName(u"Quillo"_s);
    QCoreApplication::setApplicationVersion(u"" QUILLO_VERSION ""_s);
    QApplication::setDesktopFileName(u"app.quillo.Quillo"_s);

    if (const auto refusal = DisplayChoice::prepare()) {
        return fail(*refusal);
    }
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QQuickWindow::setDefaultAlphaBuffer(true);

    QApplication application(argc, argv); // the tray's own menu is a widget
    QApplication::setQuitOnLastWindowClosed(false);
    const TerminationSignals signals([] { QCoreApplication::quit(); });

    QString whyNot;
    const auto composition = Composition::create(&whyNot);
    if (!composition) {
        return fail(whyNot);
    }
    AppDelegate delegate(*composition);
    QTimer::singleShot(0, &application, [&delegate] { delegate.applicationDidFinishLaunching(); });
    return QApplication::exec();
}
