// SPDX-License-Identifier: MIT
#include "e2e/Desktop.h"
#include "support/Await.h"
#include "support/Printing.h"

#include <QDir>
#include <QFile>

#include <csignal>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString spoken = u"go forward ten meters\n"_s;

/// The spoken recording in a format of other programs.
QString make(const Desktop &desktop, const QString &name, const QStringList &options = {})
{
    const Speech speech = Speech::goForward();
    QString path = desktop.session().path(name);
    run(u"ffmpeg"_s, QStringList{u"-v"_s, u"error"_s, u"-f"_s, u"s16le"_s, u"-ar"_s, QString::number(speech.rate),
                                 u"-i"_s, speech.rawFile} +
                         options + QStringList{path});
    return path;
}

QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Nothing of a recording stays behind.
QStringList left(const Desktop &desktop)
{
    return QDir(desktop.session().runtimeFolder()).entryList({u"*.m4a"_s, u"*input*"_s});
}

} // namespace

TEST(TranscribeTest, PrintsTheTextOfAFileAndOfStandardInput)
{
    const Desktop desktop({.hasEditor = false, .isStarted = false});
    const QString wave = make(desktop, u"speech.wav"_s);
    const QString movie = make(desktop, u"speech.m4a"_s); // its index stands at the end, where a pipe can't seek
    for (const auto &[arguments, input] : {std::pair(QStringList{u"transcribe"_s, wave}, QByteArray()),
                                           std::pair(QStringList{u"transcribe"_s, u"-"_s}, content(movie))}) {
        const Desktop::Outcome outcome = desktop.command(arguments, input);
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.output, spoken);
        EXPECT_EQ(outcome.errors, QString()) << "no progress where there is no terminal";
    }
    EXPECT_EQ(desktop.tap().count("POST /v1/devices"), 1) << "both are one device";
    EXPECT_EQ(left(desktop), QStringList());
}

TEST(TranscribeTest, ShowsItsProgressOnATerminal)
{
    const Desktop desktop({.hasEditor = false, .isStarted = false});
    const QString command = QStringLiteral(QUILLO_PROGRAM " transcribe ") + make(desktop, u"speech.wav"_s);
    const QString text = QString::fromUtf8(run(
        u"script"_s, {u"--quiet"_s, u"--return"_s, u"--command"_s, command, u"/dev/null"_s}, desktop.environment()));
    EXPECT_TRUE(text.contains(u"Reading… "_s)) << text.toStdString();
    EXPECT_TRUE(text.contains(u"Transcribing…"_s)) << text.toStdString();
    EXPECT_TRUE(text.trimmed().endsWith(spoken.trimmed())) << text.toStdString();
}

TEST(TranscribeTest, LeavesNothingBehindWhenInterrupted)
{
    Desktop desktop({.hasEditor = false, .isStarted = false});
    {
        ChildProcess reading(QStringLiteral(QUILLO_PROGRAM), {u"transcribe"_s, u"-"_s}, desktop.environment());
        ASSERT_TRUE(await([&desktop] { return left(desktop).size() == 1; })) << "it waits for its input";
        ::kill(static_cast<pid_t>(reading.pid()), SIGINT);
        EXPECT_EQ(reading.wait(), 1);
    }
    EXPECT_EQ(left(desktop), QStringList());

    const QString wave = make(desktop, u"speech.wav"_s);
    ASSERT_EQ(desktop.command({u"transcribe"_s, wave}).status, 0); // the device is registered
    const auto server = static_cast<pid_t>(desktop.server().pid());
    ::kill(server, SIGSTOP);
    {
        ChildProcess uploading(QStringLiteral(QUILLO_PROGRAM), {u"transcribe"_s, wave}, desktop.environment());
        ASSERT_TRUE(await([&desktop] { return desktop.tap().count("POST /v1/transcribe") == 2; }));
        ::kill(static_cast<pid_t>(uploading.pid()), SIGTERM);
        EXPECT_EQ(uploading.wait(), 1);
    }
    ::kill(server, SIGCONT);
    EXPECT_EQ(left(desktop), QStringList());
}

TEST(TranscribeTest, SaysInOneLineWhyThereIsNoText)
{
    const Desktop desktop({.hasEditor = false, .isStarted = false});
    const QString absent = desktop.session().path(u"absent.wav"_s);
    Desktop::Outcome outcome = desktop.command({u"transcribe"_s, absent});
    EXPECT_EQ(outcome.errors, u"quillo: There is no file %1.\n"_s.arg(absent));
    EXPECT_EQ(outcome.status, 1);
    outcome = desktop.command({u"transcribe"_s, u"-"_s}, "no sound");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors.count(u'\n'), 1);

    const Desktop undecided({.hasConsent = false, .hasEditor = false, .isStarted = false});
    outcome = undecided.command({u"transcribe"_s, make(undecided, u"speech.wav"_s)});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, QString());
    EXPECT_EQ(outcome.errors.count(u'\n'), 1);
    EXPECT_EQ(undecided.tap().count("POST /v1/devices"), 0) << "nothing is sent";
    EXPECT_EQ(left(desktop) + left(undecided), QStringList());
}
