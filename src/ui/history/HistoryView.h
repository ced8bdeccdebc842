// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

class Clock;
class GroupStore;
class HistoryWindow;
class Pasteboard;
class QObject;
class QQmlEngine;
class QWindow;
class TranscriptionStore;

/// The view HistoryView and the models behind it.
namespace HistoryView {

/// Makes the history window with the view in it, not yet shown. `model` is the controller as views observe it;
/// everything that is passed outlives the window.
std::unique_ptr<QWindow> makeWindow(QQmlEngine &engine, QObject &model, TranscriptionStore &store, GroupStore &groups,
                                    HistoryWindow &window, Pasteboard &pasteboard, Clock &clock);

} // namespace HistoryView
