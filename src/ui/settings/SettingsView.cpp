// SPDX-License-Identifier: MIT
#include "ui/settings/SettingsView.h"

#include "ui/models/BalanceProperties.h"
#include "ui/models/ShortcutProperties.h"
#include "ui/settings/GeneralProperties.h"
#include "ui/settings/PermissionProperties.h"
#include "ui/settings/SettingsModel.h"
#include "ui/windows/makeViewWindow.h"

#include <QCoreApplication>
#include <QQuickItem>
#include <QQuickView>
#include <QScreen>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int settingsWidth = 500;
/// Kept free of the settings window on a low screen, for its title bar and the desktop's panels.
constexpr int screenMargin = 96;

/// Keeps the settings window as high as its content, or as the screen allows.
void followContent(QQuickView &view)
{
    const auto fit = [&view] {
        const int wanted = qCeil(view.rootObject()->implicitHeight());
        const int allowed = view.screen() ? view.screen()->availableSize().height() - screenMargin : wanted;
        const QSize size(settingsWidth, std::min(wanted, allowed));
        view.setMinimumSize(size);
        view.setMaximumSize(size);
        view.resize(size);
    };
    QObject::connect(view.rootObject(), &QQuickItem::implicitHeightChanged, &view, fit);
    QObject::connect(&view, &QWindow::screenChanged, &view, fit);
    fit();
}

} // namespace

std::unique_ptr<QWindow> SettingsView::makeWindow(QQmlEngine &engine, const Properties &properties,
                                                  TranscriptionStore &store, GroupStore &groups,
                                                  std::function<void()> editGroups, const PackagedInfo &info,
                                                  KeyMonitors &keyMonitors)
{
    auto settings =
        std::make_unique<SettingsModel>(properties.shortcuts, store, groups, std::move(editGroups), info, keyMonitors);
    auto view = makeViewWindow(engine, u"settings/SettingsView"_s,
                               {{u"shortcuts"_s, QVariant::fromValue(&properties.shortcuts)},
                                {u"permissions"_s, QVariant::fromValue(&properties.permissions)},
                                {u"general"_s, QVariant::fromValue(&properties.general)},
                                {u"balance"_s, QVariant::fromValue(&properties.balance)},
                                {u"settings"_s, QVariant::fromValue(settings.get())}});
    settings.release()->setParent(view.get());
    view->setResizeMode(QQuickView::SizeRootObjectToView);
    view->setTitle(QCoreApplication::translate("SettingsView", "Quillo Settings"));
    view->setFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowCloseButtonHint);
    followContent(*view);
    return view;
}
