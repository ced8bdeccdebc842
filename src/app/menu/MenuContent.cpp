// SPDX-License-Identifier: MIT
#include "app/menu/MenuContent.h"

#include "app/menu/shortened.h"
#include "app/model/AppModel.h"
#include "platform/Application.h"
#include "platform/KeyCodes.h"
#include "platform/Pasteboard.h"
#include "platform/Platform.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct Menu {
    Q_DECLARE_TR_FUNCTIONS(Menu)
};

using Kind = MenuItem::Kind;

constexpr int longestTitle = 50; // of a recent transcript, in user-perceived characters
constexpr qsizetype mostRecent = 10;

MenuItem text(const QString &title)
{
    return {.kind = Kind::Text, .title = title};
}

MenuItem separator()
{
    return {};
}

MenuItem button(const QString &title, std::function<void()> action)
{
    return {.kind = Kind::Button, .title = title, .action = std::move(action)};
}

MenuItem command(const QString &title, const QString &key, std::function<void()> action)
{
    MenuItem item = button(title, std::move(action));
    item.shortcut = MenuShortcut{key, HotKeyModifier::command};
    return item;
}

MenuItem copying(const QString &title, const QString &transcript, Pasteboard &pasteboard)
{
    return button(title, [transcript, &pasteboard] {
        pasteboard.clear();
        pasteboard.setString(transcript);
    });
}

QList<MenuItem> status(AppModel &model)
{
    QList<MenuItem> items{text(model.statusText())};
    const auto balance = model.balance();
    if (model.isUnmetered()) {
        items.append(text(Menu::tr("Unmetered (dev device)")));
    } else {
        if (balance) {
            items.append(
                text(Menu::tr("%1 tokens left", nullptr, int(std::min<qint64>(*balance, 1000))).arg(*balance)));
        }
        if (balance == 0 && model.freeGrantMissed()) {
            items.append(text(Menu::tr("Today's free tokens for new users ran out before you joined.")));
        }
        items.append(button(Menu::tr("Buy Tokens…"), [&model] { model.buyTokens(); }));
    }
    if (const auto &error = model.shortcutError()) {
        items.append(text(u"⚠\uFE0E "_s + *error));
    }
    if (!model.isTrusted()) {
        items.append(separator());
        items.append(button(u"⚠\uFE0E "_s + Menu::tr("Allow pasting into other apps…"),
                            [&model] { model.permissions().fixAccessibility(); }));
    }
    return items;
}

MenuItem choice(const QString &title, const std::optional<QString> &id, GroupStore &groups, bool isChecked)
{
    return {.kind = Kind::Choice,
            .title = title,
            .action = [&groups, id] { groups.setActiveId(id); },
            .isChecked = isChecked};
}

MenuItem groupMenu(AppModel &model)
{
    GroupStore &groups = model.groups();
    const auto active = groups.group(groups.activeId());
    const QString all = Menu::tr("All entries");

    QList<MenuItem> items{choice(all, std::nullopt, groups, !active)};
    for (const DictationGroup &group : groups.groups()) {
        items.append(choice(group.name, group.id, groups, active && active->id == group.id));
    }
    MenuItem next = button(Menu::tr("Next Group"), [&model] { model.cycleGroup(true); });
    next.shortcut = model.groupShortcut().menuShortcut();
    items.append({separator(), next, button(Menu::tr("Edit Groups…"), [&model] { model.historyWindow().show(true); })});
    return {.kind = Kind::Submenu, .title = Menu::tr("Group: %1").arg(active ? active->name : all), .children = items};
}

MenuItem historyToggle(AppModel &model)
{
    HistoryWindow &window = model.historyWindow();
    MenuItem item = window.isVisible() ? button(Menu::tr("Hide History"), [&window] { window.hide(); })
                                       : button(Menu::tr("Show History"), [&window] { window.show(false); });
    item.shortcut = model.historyShortcut().menuShortcut();
    return item;
}

MenuItem copyLast(TranscriptionStore &store, Pasteboard &pasteboard)
{
    const QString title = Menu::tr("Copy Last Transcript");
    if (store.items().isEmpty()) {
        return {.kind = Kind::Button, .title = title, .isEnabled = false};
    }
    return copying(title, store.items().first().text, pasteboard);
}

MenuItem recentMenu(TranscriptionStore &store, Pasteboard &pasteboard)
{
    const auto &entries = store.items();
    QList<MenuItem> items;
    for (const Transcription &entry : entries.first(std::min(mostRecent, entries.size()))) {
        QString line = entry.text;
        line.replace(u'\n', u' ');
        items.append(copying(shortened(line, longestTitle), entry.text, pasteboard));
    }
    if (!items.isEmpty()) {
        items.append({separator(), button(Menu::tr("Clear History"), [&store] { store.clear(); })});
    }
    return {.kind = Kind::Submenu, .title = Menu::tr("Recent"), .isEnabled = !items.isEmpty(), .children = items};
}

} // namespace

QList<MenuItem> menuContent(AppModel &model, const Platform &platform)
{
    QList<MenuItem> items = status(model);
    items.append({separator(), groupMenu(model), historyToggle(model), separator(),
                  copyLast(model.store(), platform.pasteboard), recentMenu(model.store(), platform.pasteboard),
                  separator(), command(Menu::tr("Settings…"), u","_s, [&model] { model.settingsWindow().show(); }),
                  separator(),
                  command(Menu::tr("Quit Quillo"), u"q"_s, [&platform] { platform.application.terminate(); })});
    return items;
}
