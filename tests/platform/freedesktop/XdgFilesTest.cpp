// SPDX-License-Identifier: MIT
#include "platform/freedesktop/XdgFiles.h"

#include "support/Await.h"
#include "support/ChildProcess.h"
#include "support/Printing.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QScopeGuard>
#include <QTemporaryDir>

#include <csignal>
#include <functional>
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

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

constexpr qsizetype shorter = 2'000'000;
const QByteArray first(shorter, 'a');
const QByteArray second(shorter + 1'000'000, 'b');

/// Saves the two contents in turn, in many pieces, as long as the process lives.
[[noreturn]] void saveForEver(const QString &path)
{
    XdgFiles files;
    while (true) {
        for (const QByteArrayView content : {first, second}) {
            QList<QByteArrayView> pieces;
            for (qsizetype start = 0; start < content.size(); start += 10'000) {
                pieces.append(content.sliced(start, 10'000));
            }
            files.replace(path, pieces);
        }
    }
}

pid_t startSaver(const QString &path)
{
    const pid_t saver = ::fork();
    if (saver == 0) {
        saveForEver(path);
    }
    return saver;
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
    put(path + u".new-%1"_s.arg(::getpid()), "left by a crash, readable by all");
    ASSERT_FALSE(files.replace(path, {"one", "", " two"}));
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
    ASSERT_FALSE(files.replace(path, {"old"}));
    {
        rlimit limit{};
        ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &limit), 0);
        const rlimit small{rlim_t(first.size() / 2), limit.rlim_max};
        auto *const handler = std::signal(SIGXFSZ, SIG_IGN);
        const auto restore = qScopeGuard([&] {
            ::setrlimit(RLIMIT_FSIZE, &limit);
            std::signal(SIGXFSZ, handler);
        });
        ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
        EXPECT_EQ(files.replace(path, {first}), std::errc::file_too_large) << "no more room, as on a full disk";
    }
    EXPECT_EQ(files.replace(path + u"/below"_s, {"new"}), std::errc::not_a_directory);
    EXPECT_EQ(files.replace(folder.filePath(u"missing/file"_s), {"new"}), std::errc::no_such_file_or_directory);
    EXPECT_EQ(contentOf(path), "old");
    EXPECT_EQ(everything(), QStringList{u"records.json"_s});

    ASSERT_TRUE(files.createFolder(folder.filePath(u"taken"_s)));
    EXPECT_EQ(files.replace(folder.filePath(u"taken"_s), {"new"}), std::errc::is_a_directory);
    EXPECT_EQ(everything(), (QStringList{u"records.json"_s, u"taken"_s}));
}

TEST_F(XdgFilesTest, FileIsOneOfTheContentsWhenTheProgramIsKilledDuringASave)
{
    ASSERT_FALSE(files.replace(path, {first}));
    for (int round = 0; round < 12; ++round) {
        const pid_t saver = startSaver(path);
        struct stat status {};
        const auto temporary = QFile::encodeName(path + u".new-%1"_s.arg(saver));
        const QDeadlineTimer deadline(std::chrono::seconds(20));
        while (::stat(temporary.constData(), &status) != 0 || status.st_size < shorter * round / 12 + 1) {
            ASSERT_FALSE(deadline.hasExpired()) << "no save under way";
        }
        ASSERT_EQ(::kill(saver, SIGKILL), 0);
        ASSERT_EQ(::waitpid(saver, nullptr, 0), saver);
        const auto content = contentOf(path);
        ASSERT_TRUE(content == first || content == second) << content.size() << " bytes, round " << round;
    }
    put(path + u".new-1"_s, "of a process that lives");
    EXPECT_FALSE(files.replace(path, {"next"}));
    EXPECT_EQ(contentOf(path), "next");
    ASSERT_TRUE(QFile::remove(path + u".new-1"_s));
    EXPECT_EQ(everything(), QStringList{u"records.json"_s});
}

TEST_F(XdgFilesTest, ALinkStaysALinkToTheFileThatIsReplaced)
{
    ASSERT_TRUE(files.createFolder(folder.filePath(u"synchronised"_s)));
    const QString target = folder.filePath(u"synchronised/records.json"_s);
    ASSERT_TRUE(QFile::link(target, path));
    for (const char *const content : {"into nothing", "over the file"}) {
        EXPECT_FALSE(files.replace(path, {content}));
        EXPECT_EQ(QFileInfo(path).symLinkTarget(), target);
        EXPECT_EQ(contentOf(target), content);
    }
}

TEST_F(XdgFilesTest, AnotherProcessIsWaitedForButNotForEver)
{
    ChildProcess holder(u"flock"_s, {folder.path(), u"sh"_s, u"-c"_s, u"echo held; read line"_s});
    ASSERT_EQ(holder.readLine(), u"held"_s);
    XdgFiles impatient(100ms);
    QElapsedTimer time;
    time.start();
    EXPECT_TRUE(impatient.lock(folder.path()));
    EXPECT_GE(time.elapsed(), 100);
    holder.process().write("\n");
    holder.process().waitForBytesWritten();
    const auto lock = files.lock(folder.path());
    EXPECT_EQ(holder.wait(), 0);
    ChildProcess refused(u"flock"_s, {u"-n"_s, folder.path(), u"true"_s});
    EXPECT_EQ(refused.wait(), 1);
}

TEST_F(XdgFilesTest, EveryChangeOfTheFileIsHeardOf)
{
    int heard = 0;
    const auto watch = files.watch(path, [&] { ++heard; });
    QByteArray stamp = files.stamp(path);
    EXPECT_EQ(stamp, QByteArray());
    const std::function<void()> changes[] = {
        [&] { put(path, "made"); },     [&] { files.replace(path, {"same"}); }, [&] { files.replace(path, {"size"}); },
        [&] { put(path, "in place"); }, [&] { QFile::remove(path); },           [&] { put(path, "again"); },
    };
    for (const auto &change : changes) {
        SCOPED_TRACE(&change - changes);
        change();
        const int before = heard;
        EXPECT_NE(std::exchange(stamp, files.stamp(path)), files.stamp(path));
        EXPECT_TRUE(await([&] { return heard > before; }));
    }
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
