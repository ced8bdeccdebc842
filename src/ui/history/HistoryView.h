// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

class BalanceProperties;
class Clock;
class DictationProperties;
class GroupStore;
class HistoryWindow;
class Pasteboard;
class QQmlEngine;
class QWindow;
class ShortcutProperties;
class TranscriptionStore;
class UnsentProperties;

/// The view HistoryView and the models behind it.
namespace HistoryView {

/// What the window shows beside the history.
struct Properties {
    DictationProperties &dictation;
    ShortcutProperties &shortcuts;
    BalanceProperties &balance;
    UnsentProperties &unsent;
};

/// Makes the history window with the view in it, not yet shown. Everything that is passed outlives the window.
std::unique_ptr<QWindow> makeWindow(QQmlEngine &engine, const Properties &properties, TranscriptionStore &store,
                                    GroupStore &groups, HistoryWindow &window, Pasteboard &pasteboard, Clock &clock);

} // namespace HistoryView
