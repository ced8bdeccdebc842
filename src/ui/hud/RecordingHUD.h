// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"
#include "ui/hud/HUDModel.h"

#include <QList>

#include <functional>
#include <memory>

class Screens;
class StatusPanel;

/// The small status panel near the bottom of the screen. It never takes the keyboard focus. Main thread only.
class RecordingHUD {
public:
    using Phase = HUDModel::Phase;
    /// Makes the panel with the HUD's view in it; called once.
    using PanelFactory = std::function<std::unique_ptr<StatusPanel>(HUDModel &)>;

    RecordingHUD(Clock &clock, const Screens &screens, PanelFactory makePanel);
    RecordingHUD(const RecordingHUD &) = delete;
    RecordingHUD &operator=(const RecordingHUD &) = delete;
    ~RecordingHUD();

    HUDModel &model() { return m_model; }

    /// Makes the panel ahead of its first use, so that the first phase appears as fast as the later ones.
    void prepare();

    /// Shows a phase at once, on the screen that holds the mouse pointer. Messages, groups and the out-of-tokens notice
    /// hide by themselves; recording and transcribing stay until the next call.
    void show(const Phase &phase);
    /// Shows a notice that has nothing to do with the dictation: while a recording or a transcription is on screen it
    /// waits for its turn.
    void notify(const Phase &notice);
    /// Hides what is shown; a notice that waits takes its place.
    void hide();
    /// Hides `phase`, unless something else has been shown since.
    void retract(const Phase &phase);

private:
    bool showsDictation() const;
    void position();

    Clock &m_clock;
    const Screens &m_screens;
    PanelFactory m_makePanel;
    HUDModel m_model;
    std::unique_ptr<StatusPanel> m_panel;
    std::unique_ptr<Clock::Timer> m_hideTask;
    bool m_isShown = false;
    QList<Phase> m_waiting;
};
