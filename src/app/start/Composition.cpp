// SPDX-License-Identifier: MIT
#include "app/start/Composition.h"

#include "app/menu/MenuBarExtra.h"
#include "app/start/AppViews.h"
#include "app/start/Services.h"
#include "platform/Platform.h"
#include "platform/audio/PulseMicrophone.h"
#include "platform/freedesktop/AutostartEntry.h"
#include "platform/freedesktop/DesktopWorkspace.h"
#include "platform/tray/TrayItem.h"
#include "platform/x11/X11Backend.h"
#include "platform/x11/windows/TerminalClasses.h"
#include "ui/style/Paper.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QQmlEngine>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// The user's own list of terminals, where there is one, replaces the built-in list.
QStringList terminalClasses(const Preferences &preferences)
{
    const auto chosen = preferences.string(u"terminalClasses"_s);
    return chosen ? chosen->split(u' ', Qt::SkipEmptyParts) : TerminalClasses::defaults();
}

} // namespace

// In the order of dependence: what is destroyed last stands first.
struct Composition::Parts {
    Services services;
    DesktopWorkspace workspace;
    AutostartEntry loginItem{QCoreApplication::applicationFilePath()};
    TrayItem statusItem{services.clock, QDBusConnection::sessionBus()};
    PulseMicrophone microphone{services.clock};
    std::unique_ptr<X11Backend> desktop;
    std::optional<Platform> platform;

    QQmlEngine engine;
    std::optional<AppModel> model;
    std::optional<MenuBarExtra> menuBarExtra;
};

std::unique_ptr<Composition> Composition::create(QString *whyNot)
{
    auto parts = std::make_unique<Parts>();
    parts->desktop = X11Backend::create(parts->services.clock, terminalClasses(parts->services.preferences), whyNot);
    if (!parts->desktop) {
        return nullptr;
    }
    return std::unique_ptr<Composition>(new Composition(std::move(parts)));
}

Composition::Composition(std::unique_ptr<Parts> parts) : m_parts(std::move(parts))
{
    Parts &p = *m_parts;
    X11Backend &x11 = *p.desktop;
    x11.setClosedHandler([] { QCoreApplication::quit(); });
    p.platform.emplace(Platform{x11.accessibility(), x11.application(), p.services.clock, p.services.files,
                                x11.hotKeys(), x11.keyEvents(), x11.keyMonitors(), p.loginItem, p.microphone,
                                p.services.packagedInfo, x11.pasteboard(), p.services.preferences, x11.screens(),
                                p.services.secrets, p.statusItem, x11.statusPanels(), p.workspace});
    p.model.emplace(*p.platform, p.services.client, p.services.consent, AppViews::factories(p.engine, *p.platform));
    p.menuBarExtra.emplace(*p.model, *p.platform);
}

Composition::~Composition() = default;

void Composition::start()
{
    Paper::registerFonts(ResourceInfo::defaultFolder());
    // The shortcuts before the views: they are what the user may be waiting for.
    model().start();
    model().hud().prepare();
}

AppModel &Composition::model()
{
    return *m_parts->model;
}

const Platform &Composition::platform() const
{
    return *m_parts->platform;
}
