// SPDX-License-Identifier: MIT
#pragma once

#include "ui/SettingsModel.h"

#include <memory>

class Clock;
class GroupStore;
class HistoryWindow;
class KeyMonitors;
class PackagedInfo;
class Pasteboard;
class QObject;
class QQmlEngine;
class QWindow;
class TranscriptionStore;

// The windows with their views in them, not yet shown. `model` is the controller as the views observe it; everything
// that is passed outlives the window.

std::unique_ptr<QWindow> makeHistoryWindow(QQmlEngine &engine, QObject &model, TranscriptionStore &store,
                                           GroupStore &groups, HistoryWindow &window, Pasteboard &pasteboard,
                                           Clock &clock);

std::unique_ptr<QWindow> makeSettingsWindow(QQmlEngine &engine, QObject &model, TranscriptionStore &store,
                                            GroupStore &groups, const PackagedInfo &info, KeyMonitors &keyMonitors,
                                            const SettingsModel::Shortcuts &shortcuts);
