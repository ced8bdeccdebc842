// SPDX-License-Identifier: MIT
#include "ui/hud/RecordingHUD.h"

#include "platform/Screens.h"
#include "platform/StatusPanel.h"

#include <optional>

using namespace std::chrono_literals;

namespace {

constexpr auto noticeTime = 2500ms;
constexpr auto outOfTokensTime = 8000ms; // long enough to reach the button

// Distance of the panel from the bottom of the visible screen, in points.
constexpr qreal bottomMargin = 48;

std::optional<Clock::Duration> autoHide(const RecordingHUD::Phase &phase)
{
    if (std::holds_alternative<HUDPhase::OutOfTokens>(phase)) {
        return outOfTokensTime;
    }
    const bool isNotice =
        std::holds_alternative<HUDPhase::Message>(phase) || std::holds_alternative<HUDPhase::Group>(phase);
    return isNotice ? std::optional<Clock::Duration>(noticeTime) : std::nullopt;
}

} // namespace

RecordingHUD::RecordingHUD(Clock &clock, const Screens &screens, PanelFactory makePanel)
    : m_clock(clock), m_screens(screens), m_makePanel(std::move(makePanel))
{
}

RecordingHUD::~RecordingHUD() = default;

void RecordingHUD::prepare()
{
    if (!m_panel) {
        m_panel = m_makePanel(m_model);
    }
}

void RecordingHUD::show(const Phase &phase)
{
    prepare();
    m_hideTask.reset();
    m_isShown = true;
    m_model.setPhase(phase);
    m_panel->setIgnoresMouseEvents(!std::holds_alternative<HUDPhase::OutOfTokens>(phase));
    position();
    m_panel->orderFrontRegardless();
    if (const auto delay = autoHide(phase)) {
        m_hideTask = m_clock.after(*delay, [this] { hide(); });
    }
}

void RecordingHUD::notify(const Phase &notice)
{
    if (showsDictation()) {
        m_waiting.append(notice);
    } else {
        show(notice);
    }
}

void RecordingHUD::hide()
{
    m_hideTask.reset();
    m_isShown = false;
    m_model.setLevel(0);
    if (!m_waiting.isEmpty()) {
        show(m_waiting.takeFirst());
    } else if (m_panel) {
        m_panel->orderOut();
    }
}

void RecordingHUD::retract(const Phase &phase)
{
    if (m_isShown && m_model.phase() == phase) {
        hide();
    }
}

bool RecordingHUD::showsDictation() const
{
    return m_isShown && !autoHide(m_model.phase());
}

void RecordingHUD::position()
{
    const auto screen = m_screens.underPointer();
    if (!screen) {
        return;
    }
    const QRectF visible = screen->visibleFrame;
    const QSizeF size = m_panel->size();
    m_panel->setFrameOrigin({visible.center().x() - size.width() / 2, visible.bottom() - bottomMargin - size.height()});
}
