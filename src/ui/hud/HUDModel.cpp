// SPDX-License-Identifier: MIT
#include "ui/hud/HUDModel.h"

void HUDModel::setPhase(const Phase &phase)
{
    if (m_phase != phase) {
        m_phase = phase;
        Q_EMIT phaseChanged();
    }
}

void HUDModel::setLevel(float level)
{
    if (m_level != level) {
        m_level = level;
        Q_EMIT levelChanged();
    }
}

void HUDModel::buyTokens() const
{
    if (m_onBuyTokens) {
        m_onBuyTokens();
    }
}

bool HUDModel::handsFree() const
{
    const auto *recording = std::get_if<HUDPhase::Recording>(&m_phase);
    return recording != nullptr && recording->handsFree;
}

QString HUDModel::text() const
{
    if (const auto *message = std::get_if<HUDPhase::Message>(&m_phase)) {
        return message->text;
    }
    const auto *group = std::get_if<HUDPhase::Group>(&m_phase);
    return group != nullptr ? group->name : QString();
}

bool HUDModel::isError() const
{
    const auto *message = std::get_if<HUDPhase::Message>(&m_phase);
    return message != nullptr && message->isError;
}

bool HUDModel::freeGrantMissed() const
{
    const auto *outOfTokens = std::get_if<HUDPhase::OutOfTokens>(&m_phase);
    return outOfTokens != nullptr && outOfTokens->freeGrantMissed;
}
