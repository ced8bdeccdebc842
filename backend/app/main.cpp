// SPDX-License-Identifier: MIT
#include "app/CommandLine.h"
#include "support/Log.h"

#include <QCoreApplication>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("quillo-backend"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QUILLO_VERSION));
    const auto status = runCommandLine(QCoreApplication::arguments());
    flushLog();
    return status;
}
