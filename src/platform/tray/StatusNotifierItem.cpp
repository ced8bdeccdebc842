// SPDX-License-Identifier: MIT
#include "platform/tray/StatusNotifierItem.h"

#include <QDBusMetaType>
#include <QImage>
#include <QPixmap>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace {

QList<StatusNotifierPixmap> wirePixmaps(const QIcon &icon)
{
    QList<StatusNotifierPixmap> pixmaps;
    for (const QSize size : icon.availableSizes()) {
        const QImage image = icon.pixmap(size, 1).toImage().convertToFormat(QImage::Format_ARGB32);
        StatusNotifierPixmap pixmap{image.width(), image.height(), {}};
        pixmap.argb.reserve(image.sizeInBytes());
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const quint32 pixel = qToBigEndian<quint32>(image.pixel(x, y));
                pixmap.argb.append(reinterpret_cast<const char *>(&pixel), sizeof pixel);
            }
        }
        pixmaps.append(pixmap);
    }
    return pixmaps;
}

} // namespace

QDBusArgument &operator<<(QDBusArgument &argument, const StatusNotifierPixmap &pixmap)
{
    argument.beginStructure();
    argument << pixmap.width << pixmap.height << pixmap.argb;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, StatusNotifierPixmap &pixmap)
{
    argument.beginStructure();
    argument >> pixmap.width >> pixmap.height >> pixmap.argb;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const StatusNotifierToolTip &toolTip)
{
    argument.beginStructure();
    argument << toolTip.iconName << toolTip.pixmaps << toolTip.title << toolTip.text;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, StatusNotifierToolTip &toolTip)
{
    argument.beginStructure();
    argument >> toolTip.iconName >> toolTip.pixmaps >> toolTip.title >> toolTip.text;
    argument.endStructure();
    return argument;
}

StatusNotifierItem::StatusNotifierItem(QObject *object, QString menuPath)
    : QDBusAbstractAdaptor(object), m_menuPath(std::move(menuPath))
{
    qDBusRegisterMetaType<StatusNotifierPixmap>();
    qDBusRegisterMetaType<QList<StatusNotifierPixmap>>();
    qDBusRegisterMetaType<StatusNotifierToolTip>();
}

void StatusNotifierItem::setContent(const QIcon &icon, const QString &label)
{
    m_pixmaps = wirePixmaps(icon);
    Q_EMIT NewIcon();
    if (label != m_label) {
        m_label = label;
        Q_EMIT NewTitle();
        Q_EMIT NewToolTip();
        Q_EMIT XAyatanaNewLabel(m_label, m_label);
    }
}

QString StatusNotifierItem::title() const
{
    return m_label.isEmpty() ? u"Quillo"_s : u"Quillo: "_s + m_label;
}

StatusNotifierToolTip StatusNotifierItem::toolTip() const
{
    return {{}, {}, title(), {}};
}

void StatusNotifierItem::Activate(int /*x*/, int /*y*/) const
{
    if (m_onActivation) {
        m_onActivation();
    }
}

void StatusNotifierItem::SecondaryActivate(int x, int y) const
{
    Activate(x, y);
}

void StatusNotifierItem::ContextMenu(int /*x*/, int /*y*/) const {} // the panel shows the menu by itself

void StatusNotifierItem::Scroll(int /*delta*/, const QString & /*orientation*/) const {}
