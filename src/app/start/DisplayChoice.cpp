// SPDX-License-Identifier: MIT
#include "app/start/DisplayChoice.h"

#include "platform/x11/X11Backend.h"

using namespace Qt::StringLiterals;

std::optional<QString> DisplayChoice::refusal()
{
    const QString chosen = qEnvironmentVariable("QUILLO_PLATFORM");
    if (!chosen.isEmpty() && chosen != u"x11" && chosen != u"wayland") {
        return u"QUILLO_PLATFORM is \"%1\"; it can be x11 or wayland."_s.arg(chosen);
    }
    const bool isWayland = chosen == u"wayland" || (chosen.isEmpty() && qEnvironmentVariableIsSet("WAYLAND_DISPLAY"));
    if (isWayland) {
        return u"Wayland sessions are not supported yet. Log in to an X11 session, or try QUILLO_PLATFORM=x11, which "
               "reaches only the programs that run through Xwayland."_s;
    }
    if (qEnvironmentVariableIsEmpty("DISPLAY")) {
        return u"There is no X11 display (DISPLAY is not set)."_s;
    }
    if (!X11Backend::canConnect()) {
        return u"The X11 display %1 can't be reached."_s.arg(qEnvironmentVariable("DISPLAY"));
    }
    return std::nullopt;
}

void DisplayChoice::prepare()
{
    qputenv("QT_QPA_PLATFORM", "xcb");
}
