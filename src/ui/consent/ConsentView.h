// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

class DisclosureView;
class QQmlEngine;
class QWindow;

/// The view DisclosureView.
namespace ConsentView {

/// Makes the consent window, of the view's size, that can only be closed.
std::unique_ptr<QWindow> makeWindow(QQmlEngine &engine, DisclosureView &disclosure);

} // namespace ConsentView
