// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"
#include "ui/hud/HUDModel.h"

#include <functional>
#include <memory>

class Screens;
class StatusPanel;

/// The small status panel near the bottom of the screen. It never takes the keyboard focus. Main thread only.
class RecordingHUD {
public:
    using Phase = HUDModel::Phase;
    /// Makes the panel with the HUD's view in it; called at the first `show`.
    using PanelFactory = std::function<std::unique_ptr<StatusPanel>(HUDModel &)>;

    RecordingHUD(Clock &clock, const Screens &screens, PanelFactory makePanel);
    RecordingHUD(const RecordingHUD &) = delete;
    RecordingHUD &operator=(const RecordingHUD &) = delete;
    ~RecordingHUD();

    HUDModel &model() { return m_model; }

    /// Shows a phase on the screen that holds the mouse pointer. Messages, groups and the out-of-tokens notice hide
    /// by themselves; recording and transcribing stay until the next call.
    void show(const Phase &phase);
    void hide();

private:
    void position();

    Clock &m_clock;
    const Screens &m_screens;
    PanelFactory m_makePanel;
    HUDModel m_model;
    std::unique_ptr<StatusPanel> m_panel;
    std::unique_ptr<Clock::Timer> m_hideTask;
};
