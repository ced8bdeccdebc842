// SPDX-License-Identifier: MIT
#pragma once

#include "ui/settings/SettingsModel.h"

#include <memory>

class QObject;
class QQmlEngine;
class QWindow;

/// The view SettingsView and the model behind it.
namespace SettingsView {

/// Makes the settings window with the view in it, not yet shown. `model` is the controller as views observe it;
/// everything that is passed outlives the window.
std::unique_ptr<QWindow> makeWindow(QQmlEngine &engine, QObject &model, TranscriptionStore &store, GroupStore &groups,
                                    const PackagedInfo &info, KeyMonitors &keyMonitors,
                                    const SettingsModel::Shortcuts &shortcuts);

} // namespace SettingsView
