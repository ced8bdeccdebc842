// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

class HUDModel;
class QQmlEngine;
class StatusPanel;
class StatusPanels;

/// Makes the HUD's panel: the view HUDView in a window of 280 × 56 points.
std::unique_ptr<StatusPanel> makeHUDPanel(QQmlEngine &engine, StatusPanels &panels, HUDModel &model);
