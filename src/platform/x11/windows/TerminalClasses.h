// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// Window classes of terminals, where Ctrl+V goes to the program inside and Ctrl+Shift+V pastes.
/// The one list of them; a preference may replace it. Compared without regard to case.
namespace TerminalClasses {

inline QStringList defaults()
{
    return {
        QStringLiteral("alacritty"),
        QStringLiteral("blackbox"),
        QStringLiteral("com.raggesilver.BlackBox"),
        QStringLiteral("com.system76.CosmicTerm"),
        QStringLiteral("contour"),
        QStringLiteral("cool-retro-term"),
        QStringLiteral("deepin-terminal"),
        QStringLiteral("foot"),
        QStringLiteral("footclient"),
        QStringLiteral("ghostty"),
        QStringLiteral("com.mitchellh.ghostty"),
        QStringLiteral("gnome-terminal"),
        QStringLiteral("gnome-terminal-server"),
        QStringLiteral("guake"),
        QStringLiteral("io.elementary.terminal"),
        QStringLiteral("kgx"),
        QStringLiteral("kitty"),
        QStringLiteral("konsole"),
        QStringLiteral("org.kde.konsole"),
        QStringLiteral("lxterminal"),
        QStringLiteral("mate-terminal"),
        QStringLiteral("org.gnome.Console"),
        QStringLiteral("org.gnome.Ptyxis"),
        QStringLiteral("org.gnome.Terminal"),
        QStringLiteral("org.wezfurlong.wezterm"),
        QStringLiteral("pantheon-terminal"),
        QStringLiteral("qterminal"),
        QStringLiteral("roxterm"),
        QStringLiteral("sakura"),
        QStringLiteral("st-256color"),
        QStringLiteral("tabby"),
        QStringLiteral("terminator"),
        QStringLiteral("terminology"),
        QStringLiteral("termite"),
        QStringLiteral("tilda"),
        QStringLiteral("tilix"),
        QStringLiteral("urxvt"),
        QStringLiteral("uxterm"),
        QStringLiteral("xfce4-terminal"),
        QStringLiteral("xterm"),
        QStringLiteral("yakuake"),
    };
}

} // namespace TerminalClasses
