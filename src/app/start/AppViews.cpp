// SPDX-License-Identifier: MIT
#include "app/start/AppViews.h"

#include "platform/Platform.h"
#include "platform/StatusPanel.h"
#include "ui/consent/ConsentView.h"
#include "ui/history/HistoryView.h"
#include "ui/hud/HUDView.h"
#include "ui/settings/SettingsView.h"

#include <QWindow>

AppModel::Views AppViews::factories(QQmlEngine &engine, const Platform &platform)
{
    return {
        .hud = [&](HUDModel &hud) { return HUDView::makePanel(engine, platform.statusPanels, hud); },
        .history =
            [&](AppModel &model) {
                return HistoryView::makeWindow(
                    engine, {model.dictation(), model.shortcuts(), model.tokenBalance(), model.unsent()}, model.store(),
                    model.groups(), model.historyWindow(), platform.pasteboard, platform.clock);
            },
        .consent = [&](DisclosureView &disclosure) { return ConsentView::makeWindow(engine, disclosure); },
        .settings =
            [&](AppModel &model) {
                return SettingsView::makeWindow(
                    engine, {model.shortcuts(), model.permissions(), model.general(), model.tokenBalance()},
                    model.store(), model.groups(), [&model] { model.historyWindow().show(true); },
                    platform.packagedInfo, platform.keyMonitors);
            },
    };
}
