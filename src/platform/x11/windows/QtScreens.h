// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Screens.h"

/// The screens as Qt sees them. Needs a QGuiApplication.
class QtScreens final : public Screens {
public:
    QList<Screen> screens() const override;
    QPointF mouseLocation() const override;
};
