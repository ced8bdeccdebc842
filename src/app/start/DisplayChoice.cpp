// SPDX-License-Identifier: MIT
#include "app/start/DisplayChoice.h"

#include <QCoreApplication>

#include "platform/x11/X11Backend.h"

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(Display)
};

} // namespace

std::optional<QString> DisplayChoice::refusal()
{
    const QString chosen = qEnvironmentVariable("QUILLO_PLATFORM");
    if (!chosen.isEmpty() && chosen != u"x11" && chosen != u"wayland") {
        return Words::tr("QUILLO_PLATFORM is \"%1\"; it can be x11 or wayland.").arg(chosen);
    }
    const bool isWayland = chosen == u"wayland" || (chosen.isEmpty() && qEnvironmentVariableIsSet("WAYLAND_DISPLAY"));
    if (isWayland) {
        return Words::tr(
            "Wayland sessions are not supported yet. Log in to an X11 session, or try QUILLO_PLATFORM=x11, "
            "which reaches only the programs that run through Xwayland.");
    }
    if (qEnvironmentVariableIsEmpty("DISPLAY")) {
        return Words::tr("There is no X11 display (DISPLAY is not set).");
    }
    if (!X11Backend::canConnect()) {
        return Words::tr("The X11 display %1 can't be reached.").arg(qEnvironmentVariable("DISPLAY"));
    }
    return std::nullopt;
}

void DisplayChoice::prepare()
{
    qputenv("QT_QPA_PLATFORM", "xcb");
}
