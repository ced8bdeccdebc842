// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

class HUDModel;
class QQmlEngine;
class StatusPanel;
class StatusPanels;

/// The view HUDView.
namespace HUDView {

/// Makes the HUD's panel: the view in a window of 280 × 56 points.
std::unique_ptr<StatusPanel> makePanel(QQmlEngine &engine, StatusPanels &panels, HUDModel &model);

} // namespace HUDView
