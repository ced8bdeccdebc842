// SPDX-License-Identifier: MIT
#include "app/start/Composition.h"

#include "app/menu/MenuBarExtra.h"
#include "app/model/AppModel.h"
#include "app/model/ViewModel.h"
#include "app/start/Services.h"
#include "platform/Platform.h"
#include "platform/StatusPanel.h"
#include "platform/audio/PulseMicrophone.h"
#include "platform/freedesktop/AutostartEntry.h"
#include "platform/freedesktop/DesktopWorkspace.h"
#include "platform/tray/TrayItem.h"
#include "platform/x11/X11Backend.h"
#include "platform/x11/windows/TerminalClasses.h"
#include "ui/consent/ConsentView.h"
#include "ui/history/HistoryView.h"
#include "ui/hud/HUDView.h"
#include "ui/settings/SettingsView.h"
#include "ui/style/Paper.h"

#include <QDBusConnection>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QWindow>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// The user's own list of terminals, where there is one, replaces the built-in list.
QStringList terminalClasses(const Preferences &preferences)
{
    const auto chosen = preferences.string(u"terminalClasses"_s);
    return chosen ? chosen->split(u' ', Qt::SkipEmptyParts) : TerminalClasses::defaults();
}

/// What the recorders of the settings window do to the controller.
SettingsModel::Shortcuts recordingShortcuts(AppModel &model)
{
    return {
        .disarm = [&model] { model.disarmShortcuts(); },
        .arm = [&model] { model.rearmShortcuts(); },
        .setShortcut = [&model](const Shortcut &shortcut) { model.setShortcut(shortcut); },
        .setGroupShortcut = [&model](const Shortcut &shortcut) { model.setGroupShortcut(shortcut); },
        .setHistoryShortcut = [&model](const Shortcut &shortcut) { model.setHistoryShortcut(shortcut); },
    };
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
    std::unique_ptr<StatusPanel> preparedPanel;
    std::optional<ViewModel> viewModel; // watched by the views in the model's windows
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
    p.model.emplace(
        *p.platform, p.services.client, p.services.consent,
        AppModel::Views{
            .hud =
                [&p](HUDModel &hud) {
                    return p.preparedPanel ? std::move(p.preparedPanel)
                                           : HUDView::makePanel(p.engine, p.platform->statusPanels, hud);
                },
            .history =
                [&p](HistoryWindow &window) {
                    return HistoryView::makeWindow(p.engine, *p.viewModel, p.model->store(), p.model->groups(), window,
                                                   p.platform->pasteboard, p.platform->clock);
                },
            .consent = [&p](DisclosureView &disclosure) { return ConsentView::makeWindow(p.engine, disclosure); },
            .settings =
                [&p] {
                    return SettingsView::makeWindow(p.engine, *p.viewModel, p.model->store(), p.model->groups(),
                                                    p.platform->packagedInfo, p.platform->keyMonitors,
                                                    recordingShortcuts(*p.model));
                },
        });
    p.viewModel.emplace(*p.model);
    // The desktop has a switch of its own for it, which may have been used since a window of ours was last in front.
    QObject::connect(qGuiApp, &QGuiApplication::focusWindowChanged, &*p.viewModel, &ViewModel::launchesAtLoginChanged);
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

const Platform &Composition::platform() const
{
    return *m_parts->platform;
}

void Composition::registerFonts()
{
    Paper::registerFonts(ResourceInfo::defaultFolder());
}

void Composition::prepareViews()
{
    m_parts->preparedPanel =
        HUDView::makePanel(m_parts->engine, m_parts->platform->statusPanels, m_parts->model->hud().model());
}
