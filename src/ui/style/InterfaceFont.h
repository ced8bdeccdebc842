// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QObject>
#include <QtQml/qqmlregistration.h>

/// The desktop's interface font where more is asked of it than it may give. Main thread only.
class InterfaceFont : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// For numbers that change in place: all digits are equally wide. Where those of the interface font are not, the
    /// first substitute whose are.
    Q_INVOKABLE static QFont figures(int pixelSize);
};
