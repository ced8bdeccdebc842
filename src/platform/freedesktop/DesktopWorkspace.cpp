// SPDX-License-Identifier: MIT
#include "platform/freedesktop/DesktopWorkspace.h"

#include <QDesktopServices>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct SettingsPage {
    QStringView desktop;
    QStringView program;
    QStringList microphone;
    QStringList accessibility;
};

const std::array<SettingsPage, 3> &settingsPages()
{
    // Desktop names are those of XDG_CURRENT_DESKTOP.
    static const std::array<SettingsPage, 3> pages{
        SettingsPage{u"GNOME", u"gnome-control-center", {u"microphone"_s}, {u"universal-access"_s}},
        SettingsPage{u"KDE", u"systemsettings", {u"kcm_pulseaudio"_s}, {u"kcm_access"_s}},
        SettingsPage{u"XFCE", u"pavucontrol", {u"--tab=4"_s}, {}},
    };
    return pages;
}

} // namespace

bool DesktopWorkspace::open(const QUrl &url)
{
    return QDesktopServices::openUrl(url);
}

bool DesktopWorkspace::openPrivacySettings(PrivacyPane pane)
{
    const QStringList desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':');
    for (const SettingsPage &page : settingsPages()) {
        const QStringList &arguments = pane == PrivacyPane::Microphone ? page.microphone : page.accessibility;
        if (!desktops.contains(page.desktop) || arguments.isEmpty()) {
            continue;
        }
        const QString program = QStandardPaths::findExecutable(page.program.toString());
        return !program.isEmpty() && QProcess::startDetached(program, arguments);
    }
    return false;
}
