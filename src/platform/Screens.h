// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QPointF>
#include <QRectF>

#include <optional>

/// One screen. Points in desktop coordinates, origin at the top left, y growing downwards.
struct Screen {
    QRectF frame;
    /// The frame without panels and docks.
    QRectF visibleFrame;
};

/// The screens and the mouse pointer. Main thread only.
class Screens {
public:
    virtual ~Screens() = default;

    /// In the system's order, the main screen first.
    virtual QList<Screen> screens() const = 0;

    virtual QPointF mouseLocation() const = 0;

    /// The screen that holds the pointer; the main screen where none does, nothing where there is no screen.
    std::optional<Screen> underPointer() const;
};
