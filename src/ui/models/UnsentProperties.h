// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Recordings that are kept because they couldn't be sent, as views observe them. Main thread only.
class UnsentProperties : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The program makes it")
    Q_PROPERTY(int count READ count NOTIFY changed)
    Q_PROPERTY(bool isSending READ isSending NOTIFY changed)

public:
    virtual int count() const = 0;
    virtual bool isSending() const = 0;

    /// Sends them one after the other; the texts go to the history.
    Q_INVOKABLE virtual void sendAgain() = 0;
    Q_INVOKABLE virtual void deleteAll() = 0;

Q_SIGNALS:
    void changed();
};
