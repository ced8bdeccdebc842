// SPDX-License-Identifier: MIT
#pragma once

#include "app/model/AppModel.h"

class QQmlEngine;

/// The program's views, bound to the objects of its controller.
namespace AppViews {

/// What makes them when they are first shown. Both outlive the controller.
AppModel::Views factories(QQmlEngine &engine, const Platform &platform);

} // namespace AppViews
