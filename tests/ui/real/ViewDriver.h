// SPDX-License-Identifier: MIT
#pragma once

#include "support/Await.h"

#include <QAccessible>
#include <QQuickItem>
#include <QQuickView>
#include <QTest>

#include <stdexcept>

/// Finds what stands in a window and acts on it as a user does.
class ViewDriver {
public:
    explicit ViewDriver(QQuickView &view) : m_view(view)
    {
        if (!await([&] { return view.isActive(); })) {
            throw std::runtime_error("the window does not get the keyboard focus");
        }
    }

    /// The first visible item of a QML type that has the value under the property; null when there is none.
    QQuickItem *find(const char *type, const char *property = nullptr, const QVariant &value = {}) const
    {
        return find(m_view.contentItem(), [&](const QQuickItem &item) {
            const QByteArray name = item.metaObject()->className();
            const bool isOfType = name == type || name.startsWith(QByteArray(type) + '_');
            return isOfType && (property == nullptr || item.property(property) == value);
        });
    }

    /// The visible texts, in the order of the items.
    QStringList texts() const
    {
        QStringList found;
        find(m_view.contentItem(), [&](const QQuickItem &item) {
            if (item.inherits("QQuickText") && !item.property("text").toString().isEmpty()) {
                found.append(item.property("text").toString());
            }
            return false;
        });
        return found;
    }

    QPoint centre(const QQuickItem *item) const
    {
        if (item == nullptr) {
            throw std::runtime_error("there is no such item");
        }
        return item->mapToScene({item->width() / 2, item->height() / 2}).toPoint();
    }

    void click(const QQuickItem *item) { QTest::mouseClick(&m_view, Qt::LeftButton, {}, centre(item)); }

    void press(int key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&m_view, Qt::Key(key), modifiers); }
    /// What comes while a key that is down stays down.
    void repeat(int key)
    {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, {}, QString(), true);
            QCoreApplication::sendEvent(&m_view, &event);
        }
    }
    /// A key pressed on the way is `keyMeanwhile`.
    void drag(QPoint from, QPoint to, Qt::KeyboardModifiers modifiers = {}, Qt::Key keyMeanwhile = {})
    {
        QTest::mousePress(&m_view, Qt::LeftButton, modifiers, from);
        for (int step = 1; step <= 8; ++step) {
            QTest::mouseMove(&m_view, from + (to - from) * step / 8);
            if (step == 6 && keyMeanwhile != Qt::Key()) {
                press(keyMeanwhile);
            }
        }
        QTest::mouseRelease(&m_view, Qt::LeftButton, modifiers, to);
    }
    void type(const QString &text)
    {
        for (const QChar c : text) {
            QTest::sendKeyEvent(QTest::Click, &m_view, Qt::Key_unknown, QString(c), {});
        }
    }

    QQuickView &view() { return m_view; }

private:
    template <typename Condition> static QQuickItem *find(QQuickItem *item, const Condition &condition)
    {
        if (!item->isVisible() || item->opacity() == 0) {
            return nullptr;
        }
        if (condition(*item)) {
            return item;
        }
        for (QQuickItem *child : item->childItems()) {
            if (QQuickItem *found = find(child, condition)) {
                return found;
            }
        }
        return nullptr;
    }

    QQuickView &m_view;
};
