// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/TestClient.h"
#include "support/ChildProcess.h"

/// A tray that takes windows in (XEmbed), in the upper left corner of the display; it ends with the object.
class WindowTray {
public:
    // The grounds of the item's symbols.
    static constexpr QRgb dark = qRgb(0x1a, 0x16, 0x12);
    static constexpr QRgb red = qRgb(0xc9, 0x55, 0x3b);

    explicit WindowTray(const VirtualDisplay &display)
        : m_program(
              QStringLiteral("trayer"),
              QStringLiteral("--edge top --align left --widthtype pixel --width 200 --heighttype pixel --height 32")
                  .split(u' '),
              display.environment())
    {
    }

    /// Where the symbol with that ground stands, in whichever tray; empty where there is none.
    static QRect symbol(TestClient &user, QRgb ground) { return user.extent(ground, QSize(200, 32)); }
    /// Whether it is there at its full size.
    static bool hasSymbol(TestClient &user, QRgb ground)
    {
        const QRect area = symbol(user, ground);
        return area.width() >= 16 && area.height() >= 16;
    }

private:
    ChildProcess m_program;
};
