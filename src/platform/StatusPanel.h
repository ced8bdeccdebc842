// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <QSizeF>

#include <memory>

class QWindow;

/// A small borderless window above all others, on every desktop, that never takes the keyboard focus. Main thread only.
class StatusPanel {
public:
    StatusPanel() = default;
    StatusPanel(const StatusPanel &) = delete;
    StatusPanel &operator=(const StatusPanel &) = delete;
    virtual ~StatusPanel() = default;

    virtual QSizeF size() const = 0;

    /// True lets every click through to what lies underneath; the change takes effect at once.
    virtual void setIgnoresMouseEvents(bool ignores) = 0;

    /// Moves the top left corner, in desktop points.
    virtual void setFrameOrigin(QPointF origin) = 0;

    /// The part of the window that is drawn on, a capsule in window points. Where the desktop can't blend windows, all
    /// outside it is cut away.
    virtual void setOutline(const QRectF &capsule) = 0;

    /// Shows the window in front of all others without activating the program.
    virtual void orderFrontRegardless() = 0;
    virtual void orderOut() = 0;
};

class StatusPanels {
public:
    virtual ~StatusPanels() = default;

    /// Makes a status panel of `content`, a window not shown before, and takes it over.
    virtual std::unique_ptr<StatusPanel> adopt(std::unique_ptr<QWindow> content) = 0;
};
