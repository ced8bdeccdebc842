// SPDX-License-Identifier: MIT
#include "app/Composition.h"

#include "app/AppModel.h"
#include "app/MenuBarExtra.h"
#include "app/ViewModel.h"
#include "platform/Platform.h"
#include "platform/StatusPanel.h"
#include "platform/audio/PulseMicrophone.h"
#include "platform/freedesktop/AutostartEntry.h"
#include "platform/freedesktop/DesktopWorkspace.h"
#include "platform/freedesktop/IniPreferences.h"
#include "platform/freedesktop/LibsecretStore.h"
#include "platform/freedesktop/ResourceInfo.h"
#include "platform/freedesktop/SystemClock.h"
#include "platform/freedesktop/XdgFiles.h"
#include "platform/tray/TrayItem.h"
#include "platform/x11/TerminalClasses.h"
#include "platform/x11/X11Backend.h"
#include "service/AIConsent.h"
#include "service/ApiClient.h"
#include "ui/ConsentView.h"
#include "ui/HUDWindow.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QQmlEngine>
#include <QQuickView>

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
    SystemClock clock;
    IniPreferences preferences{IniPreferences::defaultPath()};
    XdgFiles files;
    LibsecretStore secrets;
    ResourceInfo packagedInfo{ResourceInfo::defaultFolder()};
    DesktopWorkspace workspace;
    AutostartEntry loginItem{QCoreApplication::applicationFilePath()};
    TrayItem statusItem{clock, QDBusConnection::sessionBus()};
    PulseMicrophone microphone{clock};
    std::unique_ptr<X11Backend> desktop;
    std::optional<Platform> platform;

    AIConsent consent{preferences, clock};
    ApiClient client{preferences, packagedInfo, secrets, consent};
    QQmlEngine engine;
    std::unique_ptr<StatusPanel> preparedPanel;
    std::optional<AppModel> model;
    std::optional<ViewModel> viewModel;
    std::optional<MenuBarExtra> menuBarExtra;
};

std::unique_ptr<Composition> Composition::create(QString *whyNot)
{
    auto parts = std::make_unique<Parts>();
    parts->desktop = X11Backend::create(parts->clock, terminalClasses(parts->preferences), whyNot);
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
    p.platform.emplace(Platform{x11.accessibility(), x11.application(), p.clock, p.files, x11.hotKeys(),
                                x11.keyEvents(), x11.keyMonitors(), p.loginItem, p.microphone, p.packagedInfo,
                                x11.pasteboard(), p.preferences, x11.screens(), p.secrets, p.statusItem,
                                x11.statusPanels(), p.workspace});
    p.model.emplace(*p.platform, p.client, p.consent,
                    AppModel::Views{
                        .hud =
                            [&p](HUDModel &hud) {
                                return p.preparedPanel ? std::move(p.preparedPanel)
                                                       : makeHUDPanel(p.engine, p.platform->statusPanels, hud);
                            },
                        .history = [](HistoryWindow &) { return std::make_unique<QWindow>(); },
                        .consent = [&p](DisclosureView &disclosure) { return makeConsentWindow(p.engine, disclosure); },
                        .settings = [] { return std::make_unique<QWindow>(); },
                    });
    p.viewModel.emplace(*p.model);
    p.menuBarExtra.emplace(*p.model, *p.platform);
}

Composition::~Composition()
{
    m_parts->preparedPanel.reset(); // its view watches the model
}

AppModel &Composition::model()
{
    return *m_parts->model;
}

void Composition::prepareViews()
{
    m_parts->preparedPanel =
        makeHUDPanel(m_parts->engine, m_parts->platform->statusPanels, m_parts->model->hud().model());
}
