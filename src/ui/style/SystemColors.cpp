// SPDX-License-Identifier: MIT
#include "ui/style/SystemColors.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QEvent>
#include <QGuiApplication>
#include <QPalette>

using namespace Qt::StringLiterals;

namespace {

const QString portalService = u"org.freedesktop.portal.Desktop"_s;
const QString portalPath = u"/org/freedesktop/portal/desktop"_s;
const QString settingsInterface = u"org.freedesktop.portal.Settings"_s;
const QString appearance = u"org.freedesktop.appearance"_s;
const QString colorScheme = u"color-scheme"_s;

/// Without an address Qt would start a bus of its own.
bool hasSessionBus()
{
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS");
}

} // namespace

SystemColors::SystemColors(QObject *parent) : QObject(parent)
{
    readPalette();
    qGuiApp->installEventFilter(this);
    if (hasSessionBus()) {
        askPortal();
    }
}

QColor SystemColors::window() const
{
    return isDark() ? QColor(0x1e, 0x1e, 0x20) : QColor(0xec, 0xec, 0xee);
}

QColor SystemColors::box() const
{
    return isDark() ? QColor(0x2a, 0x2a, 0x2d) : QColor(0xf8, 0xf8, 0xf9);
}

QColor SystemColors::text() const
{
    return isDark() ? QColor(0xf2, 0xf2, 0xf4) : QColor(0x1d, 0x1d, 0x1f);
}

QColor SystemColors::secondary() const
{
    return isDark() ? QColor(0xa3, 0xa3, 0xa8) : QColor(0x66, 0x66, 0x6b);
}

QColor SystemColors::accent() const
{
    return isDark() ? QColor(0x1f, 0x78, 0xe6) : QColor(0x0a, 0x66, 0xd6);
}

QColor SystemColors::accentText()
{
    return Qt::white;
}

QColor SystemColors::control() const
{
    return isDark() ? QColor(0x45, 0x45, 0x49) : QColor(0xff, 0xff, 0xff);
}

QColor SystemColors::controlBorder() const
{
    return isDark() ? QColor(0x5c, 0x5c, 0x61) : QColor(0xc3, 0xc3, 0xc8);
}

QColor SystemColors::separator() const
{
    return isDark() ? QColor(0x3d, 0x3d, 0x41) : QColor(0xdd, 0xdd, 0xe0);
}

QColor SystemColors::orange() const
{
    return isDark() ? QColor(0xff, 0x9f, 0x0a) : QColor(0xad, 0x53, 0x00);
}

QColor SystemColors::green() const
{
    return isDark() ? QColor(0x30, 0xd1, 0x58) : QColor(0x1d, 0x7a, 0x34);
}

QColor SystemColors::red() const
{
    return isDark() ? QColor(0xff, 0x6a, 0x60) : QColor(0xc4, 0x1e, 0x2a);
}

void SystemColors::onSettingChanged(const QString &group, const QString &key, const QDBusVariant &value)
{
    if (group == appearance && key == colorScheme) {
        takePortalScheme(value.variant().toUInt());
    }
}

bool SystemColors::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ApplicationPaletteChange) {
        readPalette();
        Q_EMIT changed();
    }
    return QObject::eventFilter(watched, event);
}

void SystemColors::readPalette()
{
    const QPalette palette = QGuiApplication::palette();
    m_isPaletteDark = palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

void SystemColors::askPortal()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.connect(portalService, portalPath, settingsInterface, u"SettingChanged"_s, this,
                SLOT(onSettingChanged(QString, QString, QDBusVariant)));
    QDBusMessage call = QDBusMessage::createMethodCall(portalService, portalPath, settingsInterface, u"Read"_s);
    call << appearance << colorScheme;
    auto *const watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (reply.isValid()) {
            // The portal wraps the value twice.
            const QVariant value = reply.value().variant();
            takePortalScheme(value.canConvert<QDBusVariant>() ? value.value<QDBusVariant>().variant().toUInt()
                                                              : value.toUInt());
        }
    });
}

void SystemColors::takePortalScheme(uint scheme)
{
    m_portalScheme = scheme == 0 ? std::nullopt : std::optional(scheme == 1);
    Q_EMIT changed();
}
