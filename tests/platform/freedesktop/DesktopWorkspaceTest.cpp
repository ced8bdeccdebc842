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
        QByteArray asked; // nothing where it has no such page
    } cases[] = {
        {"ubuntu:GNOME", Pane::Accessibility, "gnome-control-center universal-access"},
        {"KDE", Pane::Microphone, "systemsettings kcm_pulseaudio"},
        {"XFCE", Pane::Microphone, "pavucontrol --tab=4"},
        {"XFCE", Pane::Accessibility, ""},
        {"Unknown", Pane::Microphone, ""},
    };
    const auto restore = qScopeGuard([path = qgetenv("PATH"), desktop = qgetenv("XDG_CURRENT_DESKTOP")] {
        qputenv("PATH", path);
        qputenv("XDG_CURRENT_DESKTOP", desktop);
    });
    DesktopWorkspace workspace;
    for (const auto &[desktop, pane, asked] : cases) {
        const QTemporaryDir folder;
        qputenv("PATH", QFile::encodeName(folder.path()));
        qputenv("XDG_CURRENT_DESKTOP", desktop);
        EXPECT_FALSE(workspace.openPrivacySettings(pane)) << "not installed";
        for (const QString &program : {u"gnome-control-center"_s, u"systemsettings"_s, u"pavucontrol"_s}) {
            install(folder.filePath(program));
        }
        EXPECT_EQ(workspace.openPrivacySettings(pane), !asked.isEmpty()) << desktop.constData();
        if (!asked.isEmpty()) {
            const QString program = QString::fromLatin1(asked.first(asked.indexOf(' ')));
            EXPECT_EQ(awaitLine(folder.filePath(program + u".asked"_s)), asked);
        }
    }
}
