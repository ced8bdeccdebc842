// SPDX-License-Identifier: MIT
#include "e2e/Desktop.h"
#include "support/Printing.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(EndToEndTest, SpokenWordsStandInTheEditorAndTheClipboardIsBack)
{
    Desktop desktop;
    desktop.setClipboard("earlier");
    const Desktop::Dictation dictation = desktop.dictate(Speech::goForward());
    EXPECT_EQ(dictation.text, u"go forward ten meters"_s);
    EXPECT_EQ(desktop.awaitEditorText(dictation.text), dictation.text);
    EXPECT_TRUE(desktop.awaitClipboard("earlier"));

    QFile history(desktop.session().dataFolder() + u"/Quillo/transcriptions.json"_s);
    ASSERT_TRUE(history.open(QIODevice::ReadOnly));
    EXPECT_EQ(QJsonDocument::fromJson(history.readAll()).array().first().toObject().value(u"text"_s), dictation.text);
    EXPECT_EQ(history.permissions() & ~(QFile::ReadUser | QFile::WriteUser), QFile::ReadOwner | QFile::WriteOwner);

    const QByteArray secret = run(
        u"secret-tool"_s, {u"lookup"_s, u"service"_s, u"app.quillo.Quillo"_s, u"account"_s, u"apiDeviceCredential"_s},
        desktop.environment());
    EXPECT_TRUE(secret.contains('.'));
    EXPECT_TRUE(QDir(desktop.session().runtimeFolder()).entryList({u"*.m4a"_s}).isEmpty());

    desktop.quillo().terminate();
    EXPECT_EQ(desktop.quillo().wait(), 0);
    EXPECT_EQ(desktop.quillo().process().readAllStandardError(), QByteArray());
}
