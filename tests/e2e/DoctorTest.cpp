// SPDX-License-Identifier: MIT
#include "e2e/Desktop.h"
#include "support/Await.h"
#include "support/Printing.h"

#include <QFile>

#include <gmock/gmock.h>
#include <linux/input-event-codes.h>

using namespace Qt::StringLiterals;
using testing::HasSubstr;
using testing::Not;

namespace {

/// What it prints, each run of blanks as one.
std::string examination(const Desktop &desktop, int expectedStatus)
{
    const Desktop::Outcome outcome = desktop.command({u"doctor"_s});
    EXPECT_EQ(outcome.status, expectedStatus) << outcome.output.toStdString();
    EXPECT_EQ(outcome.errors, QString());
    QStringList lines;
    for (const QString &line : outcome.output.split(u'\n')) {
        lines.append(line.simplified());
    }
    return lines.join(u'\n').toStdString();
}

} // namespace

TEST(DoctorTest, FindsEverythingOnAWholeDesktop)
{
    Desktop desktop({.hasEditor = false, .isStarted = false});
    const std::string idle = examination(desktop, 0);
    EXPECT_THAT(idle, Not(HasSubstr("MISSING")));
    for (const char *line :
         {"ok Display server: X11", "ok Hot key: Ctrl+Alt+Space is free", "ok Session bus: there; Quillo isn't running",
          "ok Sound server: ", "ok Microphone: mic", "note Microphone level: silent", "ok Keyring: usable",
          "ok Preferences: ", "ok Consent: given", "ok Backend: ", "ok Window manager: there",
          "note Tray: none on this desktop", "\nDictation can work here.\n"}) {
        EXPECT_THAT(idle, HasSubstr(line));
    }
    desktop.start();
    EXPECT_THAT(examination(desktop, 0), HasSubstr("ok Hot keys: held by the running Quillo"));
}

TEST(DoctorTest, SaysWhatKeepsDictationFromWorking)
{
    Desktop desktop({.hasEditor = false, .isStarted = false});
    ASSERT_TRUE(desktop.user().grabsKey(KEY_SPACE, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1));
    const std::string taken = examination(desktop, 1);
    EXPECT_THAT(taken, HasSubstr("MISSING Hot key: Ctrl+Alt+Space is taken by another program\n→ choose another one"));
    EXPECT_THAT(taken, HasSubstr("\nDictation can't work here yet.\n"));
    desktop.start(); // the running program knows it as well
    EXPECT_THAT(examination(desktop, 1), HasSubstr("MISSING Hot key: Ctrl+Alt+Space is already used by another app. "));
    EXPECT_EQ(desktop.command({u"quit"_s}).status, 0);

    QFile preferences(desktop.preferencesFile());
    ASSERT_TRUE(preferences.open(QIODevice::WriteOnly));
    preferences.write("[General]\napiURL=http://127.0.0.1:1\n"); // a port that nothing listens on
    preferences.close();
    const std::string offline = examination(desktop, 1);
    EXPECT_THAT(offline, HasSubstr("MISSING Backend: http://127.0.0.1:1 does not answer\n→ "));
    EXPECT_THAT(offline, HasSubstr("note Consent: not given: dictation stays off"));
}

TEST(DoctorTest, ALockedKeyringIsSaidOnceAndTheProgramWorksFromMemory)
{
    Desktop desktop({.isStarted = false});
    desktop.session().lockKeyring();
    const std::string locked = examination(desktop, 0);
    EXPECT_THAT(locked, HasSubstr("note Keyring: locked\n→ unlock the login keyring"));
    EXPECT_EQ(QString::fromStdString(locked).count(u"Keyring"_s), 1);

    desktop.start();
    const Desktop::Dictation dictation = desktop.dictate(Speech::goForward());
    EXPECT_EQ(dictation.text, u"go forward ten meters"_s);
    EXPECT_EQ(desktop.tap().count("POST /v1/devices"), 1);
    EXPECT_EQ(desktop.quillo().process().readAllStandardError(), QByteArray());
}

TEST(DoctorTest, PreferencesThatCannotBeReadCountAsNotSet)
{
    Desktop desktop({.hasEditor = false, .isStarted = false});
    QFile preferences(desktop.preferencesFile());
    ASSERT_TRUE(preferences.open(QIODevice::Append));
    preferences.write("triggerMode=7\nshortcut=@Size(3 4)\nsome words\nhistoryShortcut=\"@ByteArray({)\"\n");
    preferences.close();
    const std::string damaged = examination(desktop, 0);
    EXPECT_THAT(damaged, HasSubstr("Quillo.conf is damaged: what can't be read counts as not set\n→ mend the file"));
    EXPECT_THAT(damaged, HasSubstr("ok Hot key: Ctrl+Alt+Space is free"));
    desktop.start();
    EXPECT_EQ(desktop.status()[u"status"_s], u"Hold or tap Ctrl+Alt+Space to dictate"_s);
}
