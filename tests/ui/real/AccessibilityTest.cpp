// SPDX-License-Identifier: MIT
#include "support/Await.h"
#include "support/Printing.h"
#include "support/Session.h"
#include "support/VirtualDisplay.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The real program on a desktop of its own, seen and operated through the accessibility bus alone.
class AccessibilityTest : public ::testing::Test {
protected:
    AccessibilityTest()
    {
        environment.insert(u"QT_LINUX_ACCESSIBILITY_ALWAYS_ON"_s, u"1"_s);
        write(u"groups.json"_s, R"([{"id":"G1","name":"Work","kind":"folder"}])");
        write(u"transcriptions.json"_s,
              R"([{"id":"E1","text":"Read as one item","timestamp":"2026-01-31T12:00:00Z","categoryId":"G1"}])");
        program = std::make_unique<ChildProcess>(QStringLiteral(QUILLO_PROGRAM), QStringList(), environment);
        if (!await([this] { return tell(u"status"_s) == 0; })) {
            throw std::runtime_error("the program does not answer");
        }
    }

    QString folder() const { return session.dataFolder() + u"/Quillo/"_s; }

    void write(const QString &name, const QByteArray &content) const
    {
        QDir().mkpath(folder());
        QFile file(folder() + name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QByteArray read(const QString &name) const
    {
        QFile file(folder() + name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    int tell(const QString &command) const
    {
        ChildProcess call(QStringLiteral(QUILLO_PROGRAM), {command}, environment);
        return call.wait();
    }

    QString reader(const QStringList &arguments) const
    {
        return QString::fromUtf8(
                   run(u"/usr/bin/python3"_s, QStringList{QStringLiteral(READER)} + arguments, environment))
            .trimmed();
    }

    Session session{Session::Keyring::None};
    VirtualDisplay display{VirtualDisplay::WindowManager::Openbox};
    QProcessEnvironment environment = session.environment(display.environment());
    std::unique_ptr<ChildProcess> program;
};

} // namespace

TEST_F(AccessibilityTest, AScreenReaderReadsAndOperatesTheWindows)
{
    ASSERT_EQ(tell(u"history"_s), 0);
    EXPECT_TRUE(reader({u"find"_s, u"list item"_s, u"Read as one item, *"_s}).contains(u"· Work"_s));
    EXPECT_NE(reader({u"find"_s, u"page tab"_s, u"All entries"_s}).indexOf(u"selected"_s), -1);
    reader({u"press"_s, u"page tab"_s, u"Work"_s});
    EXPECT_FALSE(reader({u"find"_s, u"list item"_s, u"Read as one item, *"_s}).contains(u"· Work"_s));
    EXPECT_TRUE(reader({u"find"_s, u"text"_s, u"Search transcriptions"_s}).contains(u"focused"_s));
    run(u"xdotool"_s, {u"type"_s, u"zebra"_s}, environment);
    reader({u"absent"_s, u"list item"_s, u"Read as one item, *"_s});

    reader({u"press"_s, u"push button"_s, u"Edit groups"_s});
    reader({u"focus"_s, u"text"_s, u"New group"_s});
    run(u"xdotool"_s, {u"type"_s, u"Errands"_s}, environment);
    reader({u"press"_s, u"push button"_s, u"Add"_s});
    EXPECT_TRUE(await([this] { return read(u"groups.json"_s).contains("Errands"); }));
    reader({u"press"_s, u"push button"_s, u"Done"_s});

    // The panel appears, and then changes while it is there.
    for (const QString &notice : {u"Dictating into All entries"_s, u"Dictating into Work"_s}) {
        EXPECT_EQ(reader({u"hear"_s, u"notification"_s, notice, QStringLiteral(QUILLO_PROGRAM), u"next-group"_s}),
                  u"notification: "_s + notice);
    }

    ASSERT_EQ(tell(u"settings"_s), 0);
    for (const auto &[role, name] :
         {std::pair(u"radio button"_s, u"Key combination"_s), std::pair(u"push button"_s, u"Shortcut, *"_s),
          std::pair(u"combo box"_s, u"Behavior"_s), std::pair(u"push button"_s, u"Next group, *"_s),
          std::pair(u"check box"_s, u"Open at login"_s)}) {
        EXPECT_NE(reader({u"find"_s, role, name}), QString());
    }
}
