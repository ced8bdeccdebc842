// SPDX-License-Identifier: MIT
#include "platform/tray/XEmbedItem.h"

#include "platform/KeyCodes.h"

#include <QActionGroup>
#include <QKeySequence>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

QKeySequence sequenceOf(const MenuShortcut &shortcut)
{
    static constexpr std::array<std::pair<uint32_t, Qt::KeyboardModifier>, 4> modifiers{
        {{HotKeyModifier::control, Qt::ControlModifier},
         {HotKeyModifier::option, Qt::AltModifier},
         {HotKeyModifier::shift, Qt::ShiftModifier},
         {HotKeyModifier::command, Qt::MetaModifier}}};
    static constexpr std::array<std::pair<QStringView, Qt::Key>, 7> keys{{{u"\r", Qt::Key_Return},
                                                                          {u"\t", Qt::Key_Tab},
                                                                          {u"\b", Qt::Key_Backspace},
                                                                          {u"←", Qt::Key_Left},
                                                                          {u"→", Qt::Key_Right},
                                                                          {u"↑", Qt::Key_Up},
                                                                          {u"↓", Qt::Key_Down}}};
    Qt::KeyboardModifiers held;
    for (const auto &[mask, modifier] : modifiers) {
        held.setFlag(modifier, (shortcut.modifiers & mask) != 0);
    }
    const auto *const named = std::ranges::find_if(keys, [&](const auto &row) { return row.first == shortcut.key; });
    const auto key = named == keys.end() ? Qt::Key(shortcut.key.toUpper().at(0).unicode()) : named->second;
    return QKeyCombination(held, key);
}

void apply(const MenuItem &item, QAction &action)
{
    action.setText(QString(item.title).replace(u'&', u"&&"_s)); // an ampersand would mark an access key
    action.setEnabled(item.isEnabled && item.kind != MenuItem::Kind::Text);
    if (item.kind == MenuItem::Kind::Choice) {
        action.setChecked(item.isChecked);
    }
    action.setShortcut(item.shortcut ? sequenceOf(*item.shortcut) : QKeySequence());
    QObject::disconnect(&action, &QAction::triggered, nullptr, nullptr);
    if (item.action) {
        QObject::connect(&action, &QAction::triggered, &action, [perform = item.action] { perform(); });
    }
}

void fill(QMenu &menu, const QList<MenuItem> &items)
{
    menu.clear();
    // It deletes the menu's actions only, and what is left keeps the words of former items. An open submenu may be
    // the one that was just used: not at once, then.
    for (QMenu *former : menu.findChildren<QMenu *>(Qt::FindDirectChildrenOnly)) {
        former->deleteLater();
    }
    for (QActionGroup *former : menu.findChildren<QActionGroup *>(Qt::FindDirectChildrenOnly)) {
        former->deleteLater();
    }
    auto *const choices = new QActionGroup(&menu);
    for (const MenuItem &item : items) {
        if (item.kind == MenuItem::Kind::Separator) {
            menu.addSeparator();
            continue;
        }
        QAction *action = nullptr;
        if (item.kind == MenuItem::Kind::Submenu) {
            auto *const submenu = new QMenu(&menu);
            fill(*submenu, item.children);
            action = menu.addMenu(submenu);
        } else {
            action = menu.addAction(QString());
        }
        if (item.kind == MenuItem::Kind::Choice) {
            action->setCheckable(true);
            choices->addAction(action);
        }
        apply(item, *action);
    }
}

bool hasShape(const QMenu &menu, const QList<MenuItem> &items)
{
    const QList<QAction *> actions = menu.actions();
    return std::ranges::equal(actions, items, [](const QAction *action, const MenuItem &item) {
        const QMenu *submenu = action->menu();
        return action->isSeparator() == (item.kind == MenuItem::Kind::Separator) &&
               action->isCheckable() == (item.kind == MenuItem::Kind::Choice) &&
               (submenu != nullptr) == (item.kind == MenuItem::Kind::Submenu) &&
               (submenu == nullptr || hasShape(*submenu, item.children));
    });
}

void change(const QMenu &menu, const QList<MenuItem> &items)
{
    const QList<QAction *> actions = menu.actions();
    for (qsizetype place = 0; place < items.size(); ++place) {
        if (items[place].kind == MenuItem::Kind::Separator) {
            continue;
        }
        apply(items[place], *actions[place]);
        if (const QMenu *submenu = actions[place]->menu()) {
            change(*submenu, items[place].children);
        }
    }
}

} // namespace

XEmbedItem::XEmbedItem(const std::function<void()> &onActivation)
{
    m_icon.setContextMenu(&m_menu);
    QObject::connect(&m_icon, &QSystemTrayIcon::activated, &m_menu,
                     [this, onActivation](QSystemTrayIcon::ActivationReason reason) {
                         if (reason == QSystemTrayIcon::Trigger) {
                             m_menu.popup(QCursor::pos()); // a click opens the menu, whichever button
                         } else if (reason == QSystemTrayIcon::MiddleClick && onActivation) {
                             onActivation();
                         }
                     });
}

void XEmbedItem::setContent(const QIcon &icon, const QString &toolTip)
{
    m_icon.setIcon(icon);
    m_icon.setToolTip(toolTip);
    m_icon.show();
}

void XEmbedItem::setItems(const QList<MenuItem> &items)
{
    if (hasShape(m_menu, items)) {
        change(m_menu, items);
    } else {
        fill(m_menu, items);
    }
}
