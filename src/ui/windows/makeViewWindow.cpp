// SPDX-License-Identifier: MIT
#include "ui/windows/makeViewWindow.h"

#include <QCoreApplication>
#include <QQmlEngine>
#include <QQuickView>

using namespace Qt::StringLiterals;

// Generated with the QML module. Naming it keeps the linker from dropping the registration out of the static library.
extern void qml_register_types_Quillo(); // NOLINT(readability-identifier-naming)

std::unique_ptr<QQuickView> makeViewWindow(QQmlEngine &engine, const QString &view, const QVariantMap &properties)
{
    [[maybe_unused]] void (*volatile const registration)() = &qml_register_types_Quillo;
    const QString importPath = u"qrc:/qt/qml"_s;
    if (!engine.importPathList().contains(importPath)) {
        engine.addImportPath(importPath);
    }
    auto window = std::make_unique<QQuickView>(&engine, nullptr);
    QObject::connect(&engine, &QQmlEngine::quit, window.get(), &QCoreApplication::quit, Qt::QueuedConnection);
    window->setInitialProperties(properties);
    window->setSource(QUrl(importPath + u"/Quillo/"_s + view + u".qml"_s));
    return window;
}
