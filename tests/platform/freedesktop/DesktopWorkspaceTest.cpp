// SPDX-License-Identifier: MIT
#include "platform/freedesktop/DesktopWorkspace.h"

#include "support/Await.h"
#include "support/Printing.h"

#include <QFile>
#include <QScopeGuard>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using Pane = Workspace::PrivacyPane;

/// A program that notes what it is asked for in a file beside it.
void install(const QString &program)
{
    QFile script(program);
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\necho \"${0##*/} $*\" > \"$0.asked\"\n");
    script.close();
    script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QByteArray awaitLine(const QString &path)
{
    QByteArray line;
    await([&] {
        QFile file(path);
        line = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        return line.endsWith('\n');
    });
    return line.trimmed();
}

} // namespace

TEST(DesktopWorkspaceTest, PrivacySettingsAreAPageOfTheDesktopsOwnProgram)
{
    const struct {
        QByteArray desktop;
        Pane pane;
        QString program;
        QByteArray asked;
    } cases[] = {
        {"GNOME", Pane::Microphone, u"gnome-control-center"_s, "gnome-control-center microphone"},
        {"ubuntu:GNOME", Pane::Accessibility, u"gnome-control-center"_s, "gnome-control-center universal-access"},
        {"KDE", Pane::Microphone, u"systemsettings"_s, "systemsettings kcm_pulseaudio"},
        {"KDE", Pane::Accessibility, u"systemsettings"_s, "systemsettings kcm_access"},
        {"XFCE", Pane::Microphone, u"pavucontrol"_s, "pavucontrol --tab=4"},
    };
    const auto restore = qScopeGuard([path = qgetenv("PATH"), desktop = qgetenv("XDG_CURRENT_DESKTOP")] {
        qputenv("PATH", path);
        qputenv("XDG_CURRENT_DESKTOP", desktop);
    });
    DesktopWorkspace workspace;
    for (const auto &[desktop, pane, program, asked] : cases) {
        const QTemporaryDir folder;
        qputenv("PATH", QFile::encodeName(folder.path()));
        qputenv("XDG_CURRENT_DESKTOP", desktop);
        EXPECT_FALSE(workspace.openPrivacySettings(pane)) << asked.constData() << " is not installed";
        install(folder.filePath(program));
        EXPECT_TRUE(workspace.openPrivacySettings(pane));
        EXPECT_EQ(awaitLine(folder.filePath(program + u".asked"_s)), asked);

        qputenv("XDG_CURRENT_DESKTOP", "Unknown");
        EXPECT_FALSE(workspace.openPrivacySettings(pane));
    }
    const QTemporaryDir folder;
    qputenv("PATH", QFile::encodeName(folder.path()));
    qputenv("XDG_CURRENT_DESKTOP", "XFCE");
    install(folder.filePath(u"pavucontrol"_s));
    EXPECT_FALSE(workspace.openPrivacySettings(Pane::Accessibility)) << "has no such page";
}
