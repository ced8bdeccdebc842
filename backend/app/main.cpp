// SPDX-License-Identifier: MIT
#include "app/Backend.h"
#include "support/Log.h"

#include <QCoreApplication>

#include <iostream>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("quillo-backend"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QUILLO_VERSION));
    try {
        const auto commandLine = parseCommandLine(QCoreApplication::arguments());
        if (!commandLine.answer.isEmpty()) {
            std::cout << commandLine.answer.toStdString();
            return 0;
        }
        Backend backend(commandLine.settings);
        std::cout << "quillo-backend listening on " << backend.url() << std::endl;
        backend.run();
        return 0;
    } catch (const SettingsError &error) {
        logLine(error.what());
        return 2;
    } catch (const std::exception &error) {
        logLine(error.what());
        return 1;
    }
}
