// SPDX-License-Identifier: MIT
#include "app/Settings.h"
#include "support/HttpClient.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QUrl>
#include <gmock/gmock.h>

namespace {

QString program()
{
    return QStringLiteral(QUILLO_BACKEND_PROGRAM);
}

class ProgramTest : public testing::Test {
protected:
    QString write(const char *name, const QByteArray &content) const
    {
        auto path = folder.filePath(QString::fromLatin1(name));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return path;
    }

    static Settings parse(const QStringList &arguments)
    {
        return parseCommandLine(QStringList{QStringLiteral("quillo-backend")} + arguments).settings;
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(ProgramTest, ServesUntilItIsTerminated)
{
    const auto database = folder.filePath(QStringLiteral("new/backend.db"));
    QProcess process;
    process.start(program(),
                  {QStringLiteral("serve"), QStringLiteral("--port"), QStringLiteral("0"), QStringLiteral("--database"),
                   database, QStringLiteral("--free-tokens"), QStringLiteral("5")});
    ASSERT_TRUE(process.waitForReadyRead());
    const auto line = QString::fromUtf8(process.readAllStandardOutput());
    const auto prefix = QStringLiteral("quillo-backend listening on ");
    ASSERT_TRUE(line.startsWith(prefix) && line.endsWith(QLatin1Char('\n'))) << line.toStdString();
    const QUrl url(line.mid(prefix.size()).trimmed());
    EXPECT_EQ(url.host(), QStringLiteral("127.0.0.1"));
    HttpClient client(static_cast<uint16_t>(url.port()));
    EXPECT_EQ(client.send("POST", "/v1/devices", {}, R"({"platform":"linux"})").status, 200);
    EXPECT_EQ(QFileInfo(database).dir().exists(), true);
    EXPECT_EQ(QFile::permissions(QFileInfo(database).path()) & (QFile::ExeGroup | QFile::ExeOther), 0);
    process.terminate();
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 0);
    EXPECT_EQ(process.readAllStandardOutput() + process.readAllStandardError(), QByteArray());
}

TEST_F(ProgramTest, NamesABadValueInOneLine)
{
    const auto config = write("bad.conf", "prot=1\n");
    const auto emptyKey = write("key", "\n");
    const auto key = write("good", "sk-x\n");
    const QList<QStringList> bad{{QStringLiteral("--port=65536")},
                                 {QStringLiteral("--port=x")},
                                 {QStringLiteral("--address=localhost")},
                                 {QStringLiteral("--engine=none")},
                                 {QStringLiteral("--free-tokens=-1")},
                                 {QStringLiteral("--public-url=example.org")},
                                 {QStringLiteral("--unknown")},
                                 {QStringLiteral("start")},
                                 {QStringLiteral("--config=/nonexistent")},
                                 {QStringLiteral("--config"), config},
                                 {QStringLiteral("--engine=openai"), QStringLiteral("--openai-key-file=/nonexistent")},
                                 {QStringLiteral("--engine=openai"), QStringLiteral("--openai-key-file"), emptyKey},
                                 {QStringLiteral("--engine=openai"), QStringLiteral("--openai-key-file"), key,
                                  QStringLiteral("--openai-base-url=http://example.org/v1")}};
    for (const auto &arguments : bad) {
        QProcess process;
        process.start(program(), arguments);
        ASSERT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitCode(), 2) << arguments.join(QLatin1Char(' ')).toStdString();
        EXPECT_EQ(process.readAllStandardError().count('\n'), 1);
        EXPECT_EQ(process.readAllStandardOutput(), QByteArray());
    }
}

TEST_F(ProgramTest, PrefersTheCommandLineToTheFile)
{
    const auto key = write("key", " sk-x\n");
    const auto config = write("backend.conf", "port=4000\nfree-tokens=7\nengine=openai\ncheckout=none\n"
                                              "openai-base-url=http://127.0.0.1:9/v1/\nopenai-key-file=" +
                                                  key.toUtf8() + "\n");
    const auto settings = parse({QStringLiteral("--config"), config, QStringLiteral("--port=4001")});
    EXPECT_EQ(settings.endpoint.port(), 4001);
    EXPECT_EQ(settings.grants.freeTokens, 7);
    EXPECT_EQ(settings.engine, Settings::EngineKind::OpenAi);
    EXPECT_EQ(settings.openAi.baseUrl, "http://127.0.0.1:9/v1");
    EXPECT_EQ(settings.openAi.key, "sk-x");
    EXPECT_FALSE(settings.api.manualCheckout);
    EXPECT_EQ(parse({}).endpoint.port(), 8791);
}
