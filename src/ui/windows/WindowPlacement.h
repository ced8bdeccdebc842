// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWindow;
class Screens;

/// Where windows stand. Main thread only; geometry is the window's content, in desktop points.
namespace WindowPlacement {

/// Puts the window in the middle of the screen that holds the mouse pointer.
void centre(QWindow &window, const Screens &screens);

/// The window's geometry as text, "x y width height", and back. `restore` changes nothing when the text is no geometry
/// or no screen shows enough of it to take hold of the window.
QString saved(const QWindow &window);
void restore(QWindow &window, const QString &geometry, const Screens &screens);

} // namespace WindowPlacement
