// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>

class BalanceProperties;
class GeneralProperties;
class GroupStore;
class KeyMonitors;
class PackagedInfo;
class PermissionProperties;
class QQmlEngine;
class QWindow;
class ShortcutProperties;
class TranscriptionStore;

/// The view SettingsView and the model behind it.
namespace SettingsView {

/// What the window shows and changes.
struct Properties {
    ShortcutProperties &shortcuts;
    PermissionProperties &permissions;
    GeneralProperties &general;
    BalanceProperties &balance;
};

/// Makes the settings window with the view in it, not yet shown. Everything that is passed outlives the window.
std::unique_ptr<QWindow> makeWindow(QQmlEngine &engine, const Properties &properties, TranscriptionStore &store,
                                    GroupStore &groups, std::function<void()> editGroups, const PackagedInfo &info,
                                    KeyMonitors &keyMonitors);

} // namespace SettingsView
