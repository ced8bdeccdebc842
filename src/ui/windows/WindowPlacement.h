// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWindow;
class Screens;

/// Where windows stand: always whole on one screen, without its panels, and no larger than it. Main thread only;
/// geometry is the window's content, in desktop points.
namespace WindowPlacement {

/// Puts the window in the middle of the screen that holds the mouse pointer.
void centre(QWindow &window, const Screens &screens);

/// The window's geometry as text, "x y width height", and back, on the screen that shows most of it. `restore` changes
/// nothing when the text is no geometry.
QString saved(const QWindow &window);
void restore(QWindow &window, const QString &geometry, const Screens &screens);

} // namespace WindowPlacement
