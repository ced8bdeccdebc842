// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QIcon>

#include <functional>

/// One size of an icon on the bus: ARGB in network byte order, row by row.
struct StatusNotifierPixmap { // (iiay)
    int width = 0;
    int height = 0;
    QByteArray argb;
};

struct StatusNotifierToolTip { // (sa(iiay)ss)
    QString iconName;
    QList<StatusNotifierPixmap> pixmaps;
    QString title;
    QString text;
};

Q_DECLARE_METATYPE(StatusNotifierPixmap)
Q_DECLARE_METATYPE(StatusNotifierToolTip)

QDBusArgument &operator<<(QDBusArgument &argument, const StatusNotifierPixmap &pixmap);
const QDBusArgument &operator>>(const QDBusArgument &argument, StatusNotifierPixmap &pixmap);
QDBusArgument &operator<<(QDBusArgument &argument, const StatusNotifierToolTip &toolTip);
const QDBusArgument &operator>>(const QDBusArgument &argument, StatusNotifierToolTip &toolTip);

/// The item of a panel that speaks StatusNotifierItem, with the text label of the panels that know one. Main thread
/// only.
class StatusNotifierItem : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category CONSTANT)
    Q_PROPERTY(QString Id READ id CONSTANT)
    Q_PROPERTY(QString Title READ title)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(int WindowId READ windowId CONSTANT)
    Q_PROPERTY(QString IconName READ none CONSTANT)
    Q_PROPERTY(QList<StatusNotifierPixmap> IconPixmap READ pixmaps)
    Q_PROPERTY(QString OverlayIconName READ none CONSTANT)
    Q_PROPERTY(QString AttentionIconName READ none CONSTANT)
    Q_PROPERTY(StatusNotifierToolTip ToolTip READ toolTip)
    Q_PROPERTY(bool ItemIsMenu READ itemIsMenu CONSTANT)
    Q_PROPERTY(QDBusObjectPath Menu READ menu CONSTANT)
    Q_PROPERTY(QString XAyatanaLabel READ label)
    Q_PROPERTY(QString XAyatanaLabelGuide READ label)

public:
    StatusNotifierItem(QObject *object, QString menuPath);

    /// `label` may be empty.
    void setContent(const QIcon &icon, const QString &label);
    void setActivationHandler(std::function<void()> handler) { m_onActivation = std::move(handler); }

    static QString category() { return QStringLiteral("ApplicationStatus"); }
    static QString id() { return QStringLiteral("app.quillo.Quillo"); }
    static QString status() { return QStringLiteral("Active"); }
    static int windowId() { return 0; }
    static QString none() { return {}; }
    static bool itemIsMenu() { return true; }
    QString title() const;
    QList<StatusNotifierPixmap> pixmaps() const { return m_pixmaps; }
    StatusNotifierToolTip toolTip() const;
    QDBusObjectPath menu() const { return QDBusObjectPath(m_menuPath); }
    QString label() const { return m_label; }

public Q_SLOTS:
    // NOLINTBEGIN(readability-identifier-naming): names on the bus
    void Activate(int x, int y) const;
    void SecondaryActivate(int x, int y) const;
    void ContextMenu(int x, int y) const;
    void Scroll(int delta, const QString &orientation) const;

Q_SIGNALS:
    void NewIcon();
    void NewTitle();
    void NewToolTip();
    void XAyatanaNewLabel(const QString &label, const QString &guide);
    // NOLINTEND(readability-identifier-naming)

private:
    QString m_menuPath;
    QList<StatusNotifierPixmap> m_pixmaps;
    QString m_label;
    std::function<void()> m_onActivation;
};
