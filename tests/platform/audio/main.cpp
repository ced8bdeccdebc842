// SPDX-License-Identifier: MIT
#include <QCoreApplication>
#include <QTemporaryDir>

#include <gmock/gmock.h>

int main(int argc, char **argv)
{
    // The client library keeps its cookie in the home folder.
    const QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", home.filePath(QStringLiteral("config")).toLocal8Bit());

    const QCoreApplication application(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
