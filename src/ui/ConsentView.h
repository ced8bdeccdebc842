// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

class DisclosureView;
class QQmlEngine;
class QWindow;

/// Makes the consent window: the view DisclosureView in a window of its size that can only be closed.
std::unique_ptr<QWindow> makeConsentWindow(QQmlEngine &engine, DisclosureView &disclosure);
