// SPDX-License-Identifier: MIT
#pragma once

#include "FakePlatform.h"
#include "store/GroupStore.h"
#include "store/TranscriptionStore.h"
#include "ui/history/HistoryView.h"
#include "ui/history/HistoryWindow.h"
#include "ui/settings/SettingsView.h"
#include "ui/settings/SettingsWindow.h"

#include <QJSValue>
#include <QQmlEngine>
#include <QQmlPropertyMap>
#include <QQuickView>

/// The real windows on a desktop of fakes, with the controller's values as a plain map.
struct Windows {
    /// A real pasteboard and real key monitors can stand in for the fakes.
    explicit Windows(Pasteboard *realPasteboard = nullptr, KeyMonitors *realKeyMonitors = nullptr)
        : pasteboard(realPasteboard != nullptr ? *realPasteboard : fake.pasteboard),
          keyMonitors(realKeyMonitors != nullptr ? *realKeyMonitors : fake.keyMonitors)
    {
        const auto text = [](const char *utf8) { return QString::fromUtf8(utf8); };
        for (const auto &[name, value] : std::initializer_list<std::pair<const char *, QVariant>>{
                 {"state", text("idle")},
                 {"statusText", text("Hold or tap ⌃⌥ Space to dictate")},
                 {"balance", 4821},
                 {"isUnmetered", false},
                 {"shortcutLabel", text("⌃⌥ Space")},
                 {"groupShortcutLabel", text("⌃⌥ G")},
                 {"historyShortcutLabel", text("⌃⌥ H")},
                 {"shortcutError", QString()},
                 {"groupShortcutError", QString()},
                 {"historyShortcutError", QString()},
                 {"singleKey", -1},
                 {"singleKeyLabels", QStringList{text("Right ⌥ Option"), text("Right ⌘ Command"),
                                                 text("Right ⌃ Control"), text("Fn (🌐)")}},
                 {"isFnKey", false},
                 {"triggerMode", 0},
                 {"triggerModeLabels", QStringList{text("Hold to talk, or tap for hands-free"),
                                                   text("Hold to talk only"), text("Tap to start and stop")}},
                 {"isMicrophoneGranted", true},
                 {"isTrusted", true},
                 {"hasConsent", true},
                 {"launchesAtLogin", false}}) {
            model.insert(QString::fromLatin1(name), value);
        }
        for (const char *call :
             {"fixMicrophone", "fixAccessibility", "reviewConsent", "refreshBalance", "editGroups"}) {
            const QString name = QString::fromLatin1(call);
            // Counts its calls under "calls.NAME".
            calls.insert(name, 0);
            model.insert(
                name, engine.evaluate(QStringLiteral("(function(calls) { return () => { calls.%1 += 1; } })").arg(name))
                          .call({engine.newQObject(&calls)})
                          .toVariant());
        }
        QQmlEngine::setObjectOwnership(&calls, QQmlEngine::CppOwnership);
        history = std::make_unique<HistoryWindow>(
            fake.application, fake.preferences, fake.screens, [this](HistoryWindow &window) {
                auto made = HistoryView::makeWindow(engine, model, store, groups, window, pasteboard, fake.clock);
                historyView = qobject_cast<QQuickView *>(made.get());
                return made;
            });
        settings = std::make_unique<SettingsWindow>(fake.application, fake.screens, [this] {
            auto made =
                SettingsView::makeWindow(engine, model, store, groups, fake.packagedInfo, keyMonitors, shortcuts);
            settingsView = qobject_cast<QQuickView *>(made.get());
            return made;
        });
    }

    FakePlatform fake;
    Pasteboard &pasteboard;
    KeyMonitors &keyMonitors;
    TranscriptionStore store{fake.files, fake.clock};
    GroupStore groups{fake.files, fake.preferences, fake.clock};
    QQmlEngine engine;
    QQmlPropertyMap calls;
    QQmlPropertyMap model;
    /// What the recorders did: "off", "on", "shortcut ⌃⌥ K".
    QStringList recorded;
    SettingsModel::Shortcuts shortcuts{
        [this] { recorded.append(QStringLiteral("off")); }, [this] { recorded.append(QStringLiteral("on")); },
        [this](const Shortcut &value) { recorded.append(QStringLiteral("shortcut ") + value.label()); },
        [this](const Shortcut &value) { recorded.append(QStringLiteral("group ") + value.label()); },
        [this](const Shortcut &value) { recorded.append(QStringLiteral("history ") + value.label()); }};
    std::unique_ptr<HistoryWindow> history;
    std::unique_ptr<SettingsWindow> settings;
    QQuickView *historyView = nullptr;
    QQuickView *settingsView = nullptr;
};
