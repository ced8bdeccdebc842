// SPDX-License-Identifier: MIT
#include <QGuiApplication>
#include <QQuickWindow>

#include <gtest/gtest.h>

int main(int argc, char *argv[])
{
    ::testing::InitGoogleTest(&argc, argv);
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
