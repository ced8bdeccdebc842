// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// The token balance as views observe it. Main thread only.
class BalanceProperties : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The program makes it")
    /// False until the backend has answered once; `tokens` is 0 until then.
    Q_PROPERTY(bool isKnown READ isKnown NOTIFY balanceChanged)
    /// A number as views have them, which is exact up to 2^53.
    Q_PROPERTY(double tokens READ tokens NOTIFY balanceChanged)
    Q_PROPERTY(bool isUnmetered READ isUnmetered NOTIFY balanceChanged)

public:
    virtual bool isKnown() const = 0;
    virtual qlonglong tokens() const = 0;
    virtual bool isUnmetered() const = 0;

    /// Asks the backend; a failure changes nothing.
    Q_INVOKABLE virtual void refresh() = 0;

Q_SIGNALS:
    void balanceChanged();
};
