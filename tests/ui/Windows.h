// SPDX-License-Identifier: MIT
#pragma once

#include "app/ModelOnFakes.h"
#include "support/Await.h"

#include "app/start/AppViews.h"

#include <QQmlEngine>
#include <QQuickView>

#include <stdexcept>

/// The program's windows and its controller on a desktop of fakes.
struct Windows : ModelOnFakes {
    /// What of the desktop is real.
    struct Options {
        HotKeys *hotKeys = nullptr;
        KeyMonitors *keyMonitors = nullptr;
        Pasteboard *pasteboard = nullptr;
        bool hasBackend = true;
    };

    Windows() : Windows(Options()) {}
    explicit Windows(const Options &options)
        : platform{fake.accessibility,
                   fake.application,
                   fake.clock,
                   fake.files,
                   options.hotKeys != nullptr ? *options.hotKeys : fake.hotKeys,
                   fake.keyEvents,
                   options.keyMonitors != nullptr ? *options.keyMonitors : fake.keyMonitors,
                   fake.loginItem,
                   fake.microphone,
                   fake.packagedInfo,
                   options.pasteboard != nullptr ? *options.pasteboard : fake.pasteboard,
                   fake.preferences,
                   fake.screens,
                   fake.secrets,
                   fake.statusItem,
                   fake.statusPanels,
                   fake.workspace},
          store(start(options.hasBackend).store()),
          groups(model->groups()),
          history(&model->historyWindow()),
          settings(&model->settingsWindow())
    {
    }
    Windows(const Windows &) = delete;
    Windows &operator=(const Windows &) = delete;
    ~Windows()
    {
        // The views go before the engine that made them.
        fake.statusPanels.adopted.reset();
        model.reset();
    }

    Platform platform;
    QQmlEngine engine;
    QQuickView *historyView = nullptr;
    QQuickView *settingsView = nullptr;
    TranscriptionStore &store;
    GroupStore &groups;
    HistoryWindow *history;
    SettingsWindow *settings;

private:
    /// Makes the controller with the program's own views.
    AppModel &start(bool hasBackend)
    {
        balance = 4821;
        AppModel::Views views = AppViews::factories(engine, platform);
        views.history = [this, make = std::move(views.history)](AppModel &made) {
            auto window = make(made);
            historyView = qobject_cast<QQuickView *>(window.get());
            return window;
        };
        views.settings = [this, make = std::move(views.settings)](AppModel &made) {
            auto window = make(made);
            settingsView = qobject_cast<QQuickView *>(window.get());
            return window;
        };
        model.emplace(platform, *client, consent, std::move(views));
        if (hasBackend) {
            model->start();
            if (!await([this] { return model->balance().has_value(); })) {
                throw std::runtime_error("the backend does not answer");
            }
        }
        return *model;
    }
};
