// SPDX-License-Identifier: MIT
#include "platform/freedesktop/AutostartEntry.h"

#include "support/Await.h"
#include "support/ChildProcess.h"
#include "support/Printing.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

using Status = LoginItem::Status;

const QByteArray head = "[Desktop Entry]\nType=Application\nName=Quillo\nExec=quillo\n";

/// A user's and a system's folder for entries.
class AutostartEntryTest : public testing::Test {
protected:
    AutostartEntryTest()
    {
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_folder.filePath(u"user"_s)));
        qputenv("XDG_CONFIG_DIRS", QFile::encodeName(m_folder.filePath(u"system"_s)));
        qputenv("XDG_CURRENT_DESKTOP", "ubuntu:GNOME");
        m_item.emplace(u"/opt/quillo/bin/quillo"_s);
    }
    ~AutostartEntryTest() override
    {
        for (const char *name : {"XDG_CONFIG_HOME", "XDG_CONFIG_DIRS", "XDG_CURRENT_DESKTOP"}) {
            qunsetenv(name);
        }
    }

    QString path(const QString &whose) const
    {
        return m_folder.filePath(whose + u"/autostart/app.quillo.Quillo.desktop"_s);
    }

    void write(const QString &whose, const QByteArray &content) const
    {
        QDir().mkpath(QFileInfo(path(whose)).path());
        QFile file(path(whose));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QByteArray read(const QString &whose) const
    {
        QFile file(path(whose));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir m_folder;
    std::optional<AutostartEntry> m_item;
};

} // namespace

TEST_F(AutostartEntryTest, IsOnAsTheDesktopWouldSeeIt)
{
    const struct {
        QByteArray system;
        QByteArray user;
        Status status;
    } cases[] = {
        {{}, {}, Status::NotRegistered},
        {{}, head, Status::Enabled},
        {head, {}, Status::Enabled},
        {{}, head + "Hidden=true\n", Status::NotRegistered},
        {{}, head + "Hidden=false\n", Status::Enabled},
        {head, head + "Hidden=true\n", Status::NotRegistered}, // the user's word counts
        {head + "Hidden=true\n", head, Status::Enabled},
        {{}, head + "X-GNOME-Autostart-enabled=false\n", Status::NotRegistered},
        {{}, head + "X-GNOME-Autostart-enabled=true\n", Status::Enabled},
        {{}, head + "NotShowIn=KDE;GNOME;\n", Status::NotRegistered},
        {{}, head + "NotShowIn=KDE;\n", Status::Enabled},
        {{}, head + "OnlyShowIn=XFCE;\n", Status::NotRegistered},
        {{}, head + "OnlyShowIn=XFCE;ubuntu;\n", Status::Enabled},
        {{}, "no entry at all", Status::NotRegistered},
    };
    for (const auto &[system, user, status] : cases) {
        QFile::remove(path(u"system"_s));
        QFile::remove(path(u"user"_s));
        if (!system.isEmpty()) {
            write(u"system"_s, system);
        }
        if (!user.isEmpty()) {
            write(u"user"_s, user);
        }
        EXPECT_EQ(m_item->status(), status) << system.toStdString() << "---\n" << user.toStdString();
    }
}

TEST_F(AutostartEntryTest, SwitchingOnKeepsWhatTheDesktopWrote)
{
    write(u"user"_s, "# mine\n" + head +
                         "Hidden=true\nX-GNOME-Autostart-enabled=false\nNotShowIn=GNOME;\nX-GNOME-Autostart-Delay=7\n"
                         "Name[de]=Feder\n\n[X-Else]\nkept=yes\n");
    ASSERT_TRUE(m_item->registerApp());
    EXPECT_EQ(m_item->status(), Status::Enabled);
    const QByteArray entry = read(u"user"_s);
    for (const char *kept : {"# mine\n", "X-GNOME-Autostart-Delay=7\n", "Name[de]=Feder\n", "[X-Else]\nkept=yes\n",
                             "Exec=\"/opt/quillo/bin/quillo\"\n"}) {
        EXPECT_TRUE(entry.contains(kept)) << kept << "in\n" << entry.toStdString();
    }
}

TEST_F(AutostartEntryTest, SwitchingOffRemovesTheEntryOrHidesTheSystems)
{
    EXPECT_TRUE(m_item->unregisterApp());
    ASSERT_TRUE(m_item->registerApp());
    EXPECT_TRUE(m_item->unregisterApp());
    EXPECT_FALSE(QFile::exists(path(u"user"_s)));

    write(u"system"_s, head);
    EXPECT_TRUE(m_item->unregisterApp());
    EXPECT_EQ(m_item->status(), Status::NotRegistered);
    EXPECT_EQ(read(u"system"_s), head);
    EXPECT_TRUE(m_item->registerApp());
    EXPECT_EQ(m_item->status(), Status::Enabled);
}

TEST_F(AutostartEntryTest, SaysWhenTheEntryCannotBeWritten)
{
    QFile inTheWay(m_folder.filePath(u"user"_s));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    EXPECT_FALSE(m_item->registerApp());
    EXPECT_EQ(m_item->status(), Status::NotRegistered);
}

TEST_F(AutostartEntryTest, ADesktopStartsTheProgramWhateverItsFolderIsCalled)
{
    for (const QString &name :
         {u"plain"_s, u"with blanks"_s, u"a\"quote"_s, u"back\\slash"_s, u"$HOME `id`"_s, u"Grüße;"_s}) {
        const QString folder = m_folder.filePath(name);
        ASSERT_TRUE(QDir().mkpath(folder));
        const QString program = folder + u"/quillo"_s;
        QFile script(program);
        ASSERT_TRUE(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\necho $# > \"${0%/*}/started\"\n");
        script.close();
        script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);

        ASSERT_TRUE(AutostartEntry(program).registerApp());
        run(u"desktop-file-validate"_s, {path(u"user"_s)}); // fails with a reason
        run(u"gio"_s, {u"launch"_s, path(u"user"_s)});
        const bool isStarted = await([&] {
            QFile started(folder + u"/started"_s);
            return started.open(QIODevice::ReadOnly) && started.readAll() == "0\n";
        });
        EXPECT_TRUE(isStarted) << name.toStdString() << '\n' << read(u"user"_s).toStdString();
        AutostartEntry(program).unregisterApp();
    }

    // GLib looks the program up before it reads field codes, so that a percent sign is only checked for its form.
    ASSERT_TRUE(AutostartEntry(u"/opt/100%f/quillo"_s).registerApp());
    run(u"desktop-file-validate"_s, {path(u"user"_s)});
    EXPECT_TRUE(read(u"user"_s).contains("Exec=\"/opt/100%%f/quillo\"\n"));
}
