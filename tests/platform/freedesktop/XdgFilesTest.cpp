// SPDX-License-Identifier: MIT
#include "platform/freedesktop/XdgFiles.h"

#include "SaverContent.h"
#include "support/Await.h"
#include "support/ChildProcess.h"
#include "support/Printing.h"

#include <QDir>
#include <QFile>
#include <QScopeGuard>
#include <QTemporaryDir>

#include <csignal>
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

mode_t modeOf(const QString &path)
{
    struct stat status {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void put(const QString &path, const QByteArray &content)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

class XdgFilesTest : public ::testing::Test {
protected:
    QStringList everything() const
    {
        return QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"records.json"_s);
    XdgFiles files;
};

} // namespace

TEST_F(XdgFilesTest, FilesAndFoldersAreTheOwnersAlone)
{
    const mode_t mask = ::umask(0);
    const auto restore = qScopeGuard([mask] { ::umask(mask); });
    put(path + u".new"_s, "left by a crash, readable by all");
    ASSERT_TRUE(files.replace(path, {"one", "", " two"}));
    EXPECT_EQ(contentOf(path), "one two");
    EXPECT_EQ(modeOf(path), 0600U);
    EXPECT_EQ(everything(), QStringList{u"records.json"_s});

    ASSERT_TRUE(files.createFolder(folder.filePath(u"a/b"_s)));
    EXPECT_EQ(modeOf(folder.filePath(u"a"_s)), 0700U);
    EXPECT_EQ(modeOf(folder.filePath(u"a/b"_s)), 0700U);
    EXPECT_TRUE(files.createFolder(folder.filePath(u"a/b"_s))) << "it exists";
    EXPECT_FALSE(files.createFolder(path + u"/c"_s)) << "below a file";
}

TEST_F(XdgFilesTest, FailedSaveKeepsTheOldFileAndLeavesNothing)
{
    ASSERT_TRUE(files.replace(path, {"old"}));
    const auto tooLong = SaverContent::first();
    {
        rlimit limit{};
        ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &limit), 0);
        const rlimit small{rlim_t(tooLong.size() / 2), limit.rlim_max};
        auto *const handler = std::signal(SIGXFSZ, SIG_IGN);
        const auto restore = qScopeGuard([&] {
            ::setrlimit(RLIMIT_FSIZE, &limit);
            std::signal(SIGXFSZ, handler);
        });
        ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
        EXPECT_FALSE(files.replace(path, {tooLong})) << "no more room, as on a full disk";
    }
    EXPECT_FALSE(files.replace(path + u"/below"_s, {"new"})) << "below a file";
    EXPECT_FALSE(files.replace(folder.filePath(u"missing/file"_s), {"new"})) << "in no folder";
    EXPECT_EQ(contentOf(path), "old");
    EXPECT_EQ(everything(), QStringList{u"records.json"_s});

    ASSERT_TRUE(files.createFolder(folder.filePath(u"taken"_s)));
    EXPECT_FALSE(files.replace(folder.filePath(u"taken"_s), {"new"})) << "a folder has the name";
    EXPECT_EQ(everything(), (QStringList{u"records.json"_s, u"taken"_s}));
}

TEST_F(XdgFilesTest, FileIsOneOfTheContentsWhenTheProgramIsKilledDuringASave)
{
    const auto first = SaverContent::first();
    const auto second = SaverContent::second();
    for (int round = 0; round < 12; ++round) {
        ChildProcess saver(QStringLiteral(QUILLO_SAVER_PROGRAM), {path});
        for (int saves = 0; saves <= round % 2; ++saves) {
            ASSERT_EQ(saver.readLine(), u"saved"_s);
        }
        const qsizetype reached = SaverContent::shorter * round / 12 + 1;
        struct stat status {};
        const auto temporary = QFile::encodeName(path + u".new"_s);
        QDeadlineTimer deadline(std::chrono::seconds(20));
        while (::stat(temporary.constData(), &status) != 0 || status.st_size < reached) {
            ASSERT_FALSE(deadline.hasExpired()) << "no save under way";
        }
        ASSERT_EQ(::kill(pid_t(saver.pid()), SIGKILL), 0);
        ASSERT_EQ(saver.wait(), -1) << "killed";
        const auto content = contentOf(path);
        ASSERT_TRUE(content == first || content == second) << content.size() << " bytes, round " << round;
    }
    EXPECT_TRUE(files.replace(path, {"next"}));
    EXPECT_EQ(contentOf(path), "next");
    EXPECT_EQ(everything(), QStringList{u"records.json"_s});
}

TEST_F(XdgFilesTest, TemporaryFolderIsTheUsersChoiceElseTheSessionsElseTheSystems)
{
    const QByteArray own = QFile::encodeName(folder.path());
    const struct {
        QByteArray temporary;
        QByteArray runtime;
        QByteArray expected;
    } cases[] = {
        {"/var/tmp", own, "/var/tmp"}, {"", own, own}, {"", own + '/', own}, {"", "", "/tmp"}, {"", "/missing", "/tmp"},
    };
    const auto restore = qScopeGuard([temporary = qgetenv("TMPDIR"), runtime = qgetenv("XDG_RUNTIME_DIR")] {
        qputenv("TMPDIR", temporary);
        qputenv("XDG_RUNTIME_DIR", runtime);
    });
    for (const auto &[temporary, runtime, expected] : cases) {
        qputenv("TMPDIR", temporary);
        qputenv("XDG_RUNTIME_DIR", runtime);
        EXPECT_EQ(files.temporaryFolder(), QString::fromLatin1(expected))
            << temporary.constData() << ", " << runtime.constData();
    }
}
