// SPDX-License-Identifier: MIT
#pragma once

#include <QVariantMap>

#include <memory>

class QQmlEngine;
class QQuickView;

/// A window, not yet shown, of the size of the view in it. `view` is the place of a QML file below src/ui without its
/// ending, such as "history/HistoryView"; `properties` are set before it is complete.
std::unique_ptr<QQuickView> makeViewWindow(QQmlEngine &engine, const QString &view, const QVariantMap &properties);
