// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QDBusVariant>
#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <optional>

/// The colours of windows that follow the desktop's light or dark scheme: the settings portal's, else the one that the
/// palette of the platform's theme shows. Changes take effect while windows are open. Main thread only.
class SystemColors : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool isDark READ isDark NOTIFY changed)
    Q_PROPERTY(QColor window READ window NOTIFY changed)
    Q_PROPERTY(QColor box READ box NOTIFY changed)
    Q_PROPERTY(QColor text READ text NOTIFY changed)
    Q_PROPERTY(QColor secondary READ secondary NOTIFY changed)
    Q_PROPERTY(QColor accent READ accent NOTIFY changed)
    Q_PROPERTY(QColor accentText READ accentText CONSTANT)
    Q_PROPERTY(QColor control READ control NOTIFY changed)
    Q_PROPERTY(QColor controlBorder READ controlBorder NOTIFY changed)
    Q_PROPERTY(QColor separator READ separator NOTIFY changed)
    Q_PROPERTY(QColor orange READ orange NOTIFY changed)
    Q_PROPERTY(QColor green READ green NOTIFY changed)
    Q_PROPERTY(QColor red READ red NOTIFY changed)

public:
    explicit SystemColors(QObject *parent = nullptr);

    bool isDark() const { return m_portalScheme.value_or(m_isPaletteDark); }

    /// Ground of a window, and of a group of rows in it.
    QColor window() const;
    QColor box() const;
    QColor text() const;
    /// Notes and values.
    QColor secondary() const;
    /// Default buttons, selection and focus rings, and the text on them.
    QColor accent() const;
    static QColor accentText();
    /// Buttons and fields.
    QColor control() const;
    QColor controlBorder() const;
    QColor separator() const;
    /// Warnings. The symbols for them and for what is allowed come in the same two colours.
    QColor orange() const;
    /// What is allowed.
    QColor green() const;
    /// What destroys.
    QColor red() const;

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void onSettingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void readPalette();
    void askPortal();
    /// `scheme` as the portal encodes it: 0 no preference, 1 dark, 2 light.
    void takePortalScheme(uint scheme);

    bool m_isPaletteDark = false;
    std::optional<bool> m_portalScheme;
};
