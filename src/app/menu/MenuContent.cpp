// SPDX-License-Identifier: MIT
#include "app/menu/MenuContent.h"

#include "app/menu/shortened.h"
#include "app/model/AppModel.h"
#include "platform/Application.h"
#include "platform/KeyCodes.h"
#include "platform/Pasteboard.h"
#include "platform/Platform.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

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
        items.append(text(u"Unmetered (dev device)"_s));
    } else {
        if (balance) {
            items.append(text(QString::number(*balance) + u" tokens left"_s));
        }
        if (balance == 0 && model.freeGrantMissed()) {
            items.append(text(u"Today's free tokens for new users ran out before you joined."_s));
        }
        items.append(button(u"Buy Tokens…"_s, [&model] { model.buyTokens(); }));
    }
    if (const auto &error = model.shortcutError()) {
        items.append(text(u"⚠\uFE0E "_s + *error));
    }
    if (!model.isTrusted()) {
        items.append(separator());
        items.append(
            button(u"⚠\uFE0E Allow pasting into other apps…"_s, [&model] { model.permissions().fixAccessibility(); }));
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
    const QString all = u"All entries"_s;

    QList<MenuItem> items{choice(all, std::nullopt, groups, !active)};
    for (const DictationGroup &group : groups.groups()) {
        items.append(choice(group.name, group.id, groups, active && active->id == group.id));
    }
    MenuItem next = button(u"Next Group"_s, [&model] { model.cycleGroup(true); });
    next.shortcut = model.groupShortcut().menuShortcut();
    items.append({separator(), next, button(u"Edit Groups…"_s, [&model] { model.historyWindow().show(true); })});
    return {.kind = Kind::Submenu, .title = u"Group: "_s + (active ? active->name : all), .children = items};
}

MenuItem historyToggle(AppModel &model)
{
    HistoryWindow &window = model.historyWindow();
    MenuItem item = window.isVisible() ? button(u"Hide History"_s, [&window] { window.hide(); })
                                       : button(u"Show History"_s, [&window] { window.show(false); });
    item.shortcut = model.historyShortcut().menuShortcut();
    return item;
}

MenuItem copyLast(TranscriptionStore &store, Pasteboard &pasteboard)
{
    const QString title = u"Copy Last Transcript"_s;
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
        items.append({separator(), button(u"Clear History"_s, [&store] { store.clear(); })});
    }
    return {.kind = Kind::Submenu, .title = u"Recent"_s, .isEnabled = !items.isEmpty(), .children = items};
}

} // namespace

QList<MenuItem> menuContent(AppModel &model, const Platform &platform)
{
    QList<MenuItem> items = status(model);
    items.append({separator(), groupMenu(model), historyToggle(model), separator(),
                  copyLast(model.store(), platform.pasteboard), recentMenu(model.store(), platform.pasteboard),
                  separator(), command(u"Settings…"_s, u","_s, [&model] { model.settingsWindow().show(); }),
                  separator(), command(u"Quit Quillo"_s, u"q"_s, [&platform] { platform.application.terminate(); })});
    return items;
}
