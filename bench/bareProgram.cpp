// SPDX-License-Identifier: MIT
#include <QGuiApplication>
#include <QTimer>

#include <cstdio>

// A graphical program that does nothing but say when it is there.

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    QTimer::singleShot(0, &application, [] {
        std::puts("ready");
        std::fflush(stdout);
    });
    return QGuiApplication::exec();
}
