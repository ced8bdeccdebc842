// SPDX-License-Identifier: MIT
#include "AppModelFixture.h"

#include "app/menu/MenuBarExtra.h"
#include "ui/groups/GroupCarouselModel.h"
#include "ui/groups/GroupEditorModel.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The menu as a person reads it: one line an item, "---" for a separator, "(…)" around what can't be chosen.
QStringList lines(const QList<MenuItem> &items)
{
    QStringList lines;
    for (const MenuItem &item : items) {
        const bool isInert = item.kind == MenuItem::Kind::Text || !item.isEnabled;
        const QString mark = item.isChecked ? u"✓ "_s : QString();
        lines.append(item.kind == MenuItem::Kind::Separator ? u"---"_s
                     : isInert                              ? u'(' + item.title + u')'
                                                            : mark + item.title);
    }
    return lines;
}

class MenuTest : public AppModelFixture {
protected:
    void open()
    {
        start();
        extra.emplace(*model, fake.platform);
    }

    const QList<MenuItem> &menu()
    {
        QCoreApplication::sendPostedEvents(&*extra, QEvent::MetaCall);
        return fake.statusItem.menu;
    }

    const MenuItem &item(const QString &beginning, const QList<MenuItem> &items)
    {
        const auto found =
            std::ranges::find_if(items, [&](const MenuItem &item) { return item.title.startsWith(beginning); });
        EXPECT_NE(found, items.end()) << qPrintable(beginning);
        return *found;
    }

    std::optional<MenuBarExtra> extra;
};

} // namespace

TEST_F(MenuTest, TheWholeMenuOfAFreshInstallation)
{
    open();
    EXPECT_EQ(lines(menu()),
              (QStringList{u"(Hold or tap ⌃⌥ Space to dictate)"_s, u"(10 tokens left)"_s, u"Buy Tokens…"_s, u"---"_s,
                           u"Group: All entries"_s, u"Show History"_s, u"---"_s, u"(Copy Last Transcript)"_s,
                           u"(Recent)"_s, u"---"_s, u"Settings…"_s, u"---"_s, u"Quit Quillo"_s}));
    EXPECT_EQ(item(u"Show"_s, menu()).shortcut, (MenuShortcut{u"h"_s, controlOption}));
    EXPECT_EQ(item(u"Settings"_s, menu()).shortcut, (MenuShortcut{u","_s, HotKeyModifier::command}));
    EXPECT_EQ(item(u"Quit"_s, menu()).shortcut, (MenuShortcut{u"q"_s, HotKeyModifier::command}));
}

TEST_F(MenuTest, TheLinesAboutTokensAndTroubleFollowTheState)
{
    struct Situation {
        QByteArray reply;
        bool isGrantMissed;
        QStringList lines;
    };
    const QString warning = u"Today's free tokens for new users ran out before you joined."_s;
    const std::initializer_list<Situation> situations{
        {R"({"balance":0})", true, {u"(0 tokens left)"_s, u'(' + warning + u')', u"Buy Tokens…"_s}},
        {R"({"balance":0})", false, {u"(0 tokens left)"_s, u"Buy Tokens…"_s}},
        {R"({"balance":5})", true, {u"(5 tokens left)"_s, u"Buy Tokens…"_s}},
        {R"({"balance":5,"unmetered":true})", true, {u"(Unmetered (dev device))"_s}},
    };
    open();
    for (const Situation &row : situations) {
        fake.preferences.setBoolean(u"freeGrantMissed"_s, row.isGrantMissed);
        server.onRequest = [&row](const HttpServer::Request &) { return HttpServer::Response{200, row.reply}; };
        model->refreshBalance();
        const auto arrived = [&] { return lines(menu()).mid(1, row.lines.size()) == row.lines; };
        EXPECT_TRUE(await(arrived)) << qPrintable(lines(menu()).join(u'|'));
        EXPECT_EQ(lines(menu()).at(row.lines.size() + 1), u"---"_s);
    }

    fake.hotKeys.takenByOthers.insert({KeyCode::space, controlOption});
    fake.accessibility.trusted = false;
    fake.clock.advance(std::chrono::seconds(2));
    EXPECT_EQ(lines(menu()).mid(2, 3),
              (QStringList{u"(⚠\uFE0E ⌃⌥ Space is already used by another app. Pick a different shortcut.)"_s, u"---"_s,
                           u"⚠\uFE0E Allow pasting into other apps…"_s}));
    item(u"⚠\uFE0E Allow"_s, menu()).action();
    EXPECT_EQ(fake.accessibility.prompts, 1);
    EXPECT_EQ(fake.workspace.openedPane, Workspace::PrivacyPane::Accessibility);
}

TEST_F(MenuTest, GroupsAreChosenCycledAndNamedBesideTheSymbol)
{
    open();
    const QString longName = u"0123456789abcdefghi👩‍👩‍👧tail"_s; // the 20th character is a family of three
    model->groups().add(u"Work"_s);
    const QString id = model->groups().add(longName).id;
    const auto groups = [this] { return item(u"Group"_s, menu()).children; };
    EXPECT_EQ(lines(groups()),
              (QStringList{u"✓ All entries"_s, u"Work"_s, longName, u"---"_s, u"Next Group"_s, u"Edit Groups…"_s}));
    EXPECT_EQ(item(u"Next"_s, groups()).shortcut, (MenuShortcut{u"g"_s, controlOption}));
    const GroupCarouselModel chips(model->groups());
    GroupEditorModel(model->groups()).rename(0, u"Workshop"_s);
    EXPECT_EQ(lines(groups()).at(1), u"Workshop"_s);
    EXPECT_EQ(chips.index(1).data(GroupCarouselModel::NameRole), u"Workshop"_s);
    item(longName, groups()).action();
    EXPECT_EQ(model->groups().activeId(), id);
    EXPECT_EQ(item(u"Group"_s, menu()).title, u"Group: "_s + longName);
    EXPECT_EQ(fake.statusItem.title, u"0123456789abcdefghi👩‍👩‍👧…"_s);
    item(u"Next"_s, groups()).action();
    menu();
    EXPECT_EQ(fake.statusItem.title, QString());
    item(u"Edit"_s, groups()).action();
    EXPECT_TRUE(model->historyWindow().isEditingGroups());
    EXPECT_EQ(item(u"Hide"_s, menu()).title, u"Hide History"_s);
}

TEST_F(MenuTest, RecentTranscriptsAreShortenedAndCopiedWhole)
{
    open();
    for (int number = 1; number <= 12; ++number) {
        model->store().add(u"entry %1"_s.arg(number), std::nullopt);
    }
    const QString text = u"first line\nsecond line with more than forty characters in it"_s;
    model->store().add(text, std::nullopt);
    const auto recent = [this] { return item(u"Recent"_s, menu()).children; };
    EXPECT_EQ(recent().size(), 12); // ten entries, a separator, the button
    EXPECT_EQ(recent().first().title, u"first line second line with more than forty charac…"_s);
    recent().first().action();
    EXPECT_EQ(fake.pasteboard.string(), text);
    recent().at(1).action();
    EXPECT_EQ(fake.pasteboard.string(), u"entry 12"_s);
    item(u"Copy Last"_s, menu()).action();
    EXPECT_EQ(fake.pasteboard.string(), text);
    item(u"Clear"_s, recent()).action();
    EXPECT_TRUE(model->store().items().isEmpty());
}
