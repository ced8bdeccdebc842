// SPDX-License-Identifier: MIT
#pragma once

#include "shortcuts/Shortcut.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>

/// The three shortcuts as windows show and change them. Main thread only.
class ShortcutProperties : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The program makes it")
    Q_PROPERTY(QString dictationLabel READ dictationLabel NOTIFY shortcutsChanged)
    Q_PROPERTY(QString groupLabel READ groupLabel NOTIFY shortcutsChanged)
    Q_PROPERTY(QString historyLabel READ historyLabel NOTIFY shortcutsChanged)
    /// Why a shortcut is not armed; empty when it is.
    Q_PROPERTY(QString dictationError READ dictationError NOTIFY shortcutErrorsChanged)
    Q_PROPERTY(QString groupError READ groupError NOTIFY shortcutErrorsChanged)
    Q_PROPERTY(QString historyError READ historyError NOTIFY shortcutErrorsChanged)

public:
    /// What a shortcut is for.
    enum class Use { Dictation, Group, History };

    virtual const Shortcut &shortcut(Use use) const = 0;
    /// A change takes effect and is stored at once.
    virtual void setShortcut(Use use, const Shortcut &shortcut) = 0;
    virtual TriggerMode triggerMode() const = 0;
    virtual void setTriggerMode(TriggerMode mode) = 0;
    virtual const std::optional<QString> &error(Use use) const = 0;

    /// Back to what the program comes with.
    virtual void useStandard(Use use) = 0;

    /// Switches all three off, so that pressing one can be recorded, until `rearm`.
    virtual void disarm() = 0;
    virtual void rearm() = 0;

    QString dictationLabel() const { return shortcut(Use::Dictation).label(); }
    QString groupLabel() const { return shortcut(Use::Group).label(); }
    QString historyLabel() const { return shortcut(Use::History).label(); }
    QString dictationError() const { return error(Use::Dictation).value_or(QString()); }
    QString groupError() const { return error(Use::Group).value_or(QString()); }
    QString historyError() const { return error(Use::History).value_or(QString()); }

Q_SIGNALS:
    /// One of the shortcuts or the trigger mode.
    void shortcutsChanged();
    void shortcutErrorsChanged();
};
