// SPDX-License-Identifier: MIT
#include "FakePlatform.h"
#include "store/GroupStore.h"
#include "support/Printing.h"
#include "ui/groups/GroupCarouselModel.h"
#include "ui/groups/GroupEditorModel.h"

#include <QAbstractItemModelTester>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class GroupModelsTest : public ::testing::Test {
protected:
    static QStringList names(const QAbstractItemModel &model)
    {
        QStringList shown;
        for (int row = 0; row < model.rowCount(); ++row) {
            shown.append(model.index(row, 0).data(Qt::UserRole).toString());
        }
        return shown;
    }

    void add(const QString &name)
    {
        editor.setNewName(name);
        editor.add();
    }

    FakePlatform fake;
    GroupStore groups{fake.files, fake.preferences, fake.clock};
    GroupEditorModel editor{groups};
    GroupCarouselModel carousel{groups};
    QAbstractItemModelTester editorTester{&editor, QAbstractItemModelTester::FailureReportingMode::Fatal};
    QAbstractItemModelTester carouselTester{&carousel, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace

TEST_F(GroupModelsTest, AddsNamesWithoutSurroundingBlanksAndNothingForBlanksAlone)
{
    add(u" \t "_s);
    EXPECT_FALSE(editor.canAdd());
    EXPECT_EQ(editor.newName(), u" \t "_s);
    add(u"  Work  "_s);
    EXPECT_EQ(editor.newName(), QString());
    add(u"Work"_s);
    EXPECT_EQ(names(editor), QStringList({u"Work"_s, u"Work"_s}));
    EXPECT_EQ(carousel.activeRow(), 0);
}

TEST_F(GroupModelsTest, ChangesShowInTheCarouselAtOnce)
{
    for (const QString &name : {u"A"_s, u"B"_s, u"C"_s}) {
        add(name);
    }
    carousel.activate(2);
    EXPECT_EQ(groups.group(groups.activeId())->name, u"B"_s);
    EXPECT_EQ(carousel.activeHint(), u"Dictations go into B while it's selected."_s);
    editor.move(1, 3);
    EXPECT_EQ(names(carousel), QStringList({u"All entries"_s, u"A"_s, u"C"_s, u"B"_s}));
    EXPECT_EQ(carousel.activeRow(), 3);
    editor.rename(2, u""_s);
    EXPECT_EQ(names(editor).last(), QString());
    EXPECT_EQ(names(carousel).last(), u"Untitled"_s);
    editor.remove(2);
    EXPECT_EQ(carousel.activeRow(), 0);
    EXPECT_EQ(carousel.activeHint(), QString());
    EXPECT_FALSE(fake.preferences.values.contains(u"activeGroupId"_s));
    carousel.activate(9);
    EXPECT_EQ(carousel.activeRow(), 0);
}
