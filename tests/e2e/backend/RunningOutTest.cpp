// SPDX-License-Identifier: MIT
#include "e2e/Desktop.h"
#include "support/Await.h"
#include "support/Printing.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Stands in for the desktop's browser: writes down what it is to open.
QString browserIn(const QString &folder)
{
    QFile script(folder + u"/xdg-open"_s);
    EXPECT_TRUE(script.open(QIODevice::WriteOnly));
    QString opened = folder + u"/opened"_s;
    script.write(u"#!/bin/sh\necho \"$1\" > %1.part && mv %1.part %1\n"_s.arg(opened).toUtf8());
    script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("PATH", folder.toUtf8() + ':' + qgetenv("PATH"));
    return opened;
}

/// The command's exit status and what it says about a failure.
std::pair<int, QByteArray> transcribe(const QString &file, const QProcessEnvironment &environment)
{
    ChildProcess command(QStringLiteral(QUILLO_PROGRAM), {u"transcribe"_s, file}, environment);
    const int status = command.wait();
    return {status, command.process().readAllStandardError()};
}

} // namespace

TEST(RunningOutTest, SpendsTheFreeTokensAndBuysMore)
{
    const QTemporaryDir folder;
    const QString opened = browserIn(folder.path());
    // A dictation of the command costs three or four, so there is not enough for a second one.
    qputenv("QUILLO_BACKEND_FREE_TOKENS", "5");
    Desktop desktop;
    EXPECT_EQ(desktop.dictate(Speech::goForward()).text, u"go forward ten meters"_s);

    const QString again = folder.filePath(u"again.m4a"_s);
    run(u"ffmpeg"_s, {u"-v"_s, u"error"_s, u"-f"_s, u"s16le"_s, u"-ar"_s, u"16000"_s, u"-ac"_s, u"1"_s, u"-i"_s,
                      Speech::goForward().rawFile, u"-c:a"_s, u"aac"_s, again});
    const auto [refusal, reason] = transcribe(again, desktop.environment());
    EXPECT_NE(refusal, 0);
    EXPECT_TRUE(reason.contains("out of tokens")) << reason.toStdString();

    run(u"gdbus"_s,
        {u"call"_s, u"--session"_s, u"--dest"_s, u"app.quillo.Quillo"_s, u"--object-path"_s, u"/app/quillo/Quillo"_s,
         u"--method"_s, u"org.freedesktop.Application.ActivateAction"_s, u"buy-tokens"_s, u"[]"_s, u"{}"_s},
        desktop.environment());
    ASSERT_TRUE(await([&] { return QFile::exists(opened); }));
    QFile link(opened);
    ASSERT_TRUE(link.open(QIODevice::ReadOnly));
    const QString page = QString::fromUtf8(link.readAll()).trimmed();
    EXPECT_TRUE(run(u"curl"_s, {u"-s"_s, u"--noproxy"_s, u"*"_s, page}).contains("development server"));
    run(u"curl"_s, {u"-s"_s, u"--noproxy"_s, u"*"_s, u"-d"_s, u"pack=0"_s, page});

    // The program looks for the purchase by itself.
    const auto knowsOfIt = [&] {
        const QByteArray status =
            run(u"gdbus"_s,
                {u"call"_s, u"--session"_s, u"--dest"_s, u"app.quillo.Quillo"_s, u"--object-path"_s,
                 u"/app/quillo/Quillo"_s, u"--method"_s, u"app.quillo.Quillo1.GetStatus"_s},
                desktop.environment());
        return status.contains("'balance': <int64 360");
    };
    EXPECT_TRUE(await(knowsOfIt));
    EXPECT_EQ(transcribe(again, desktop.environment()).first, 0);
}
