// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QWindow;

/// This program among the others of the desktop. Main thread only.
class Application {
public:
    /// `isOurs`: the program that has come to the front is this one.
    using ActivationHandler = std::function<void(bool isOurs)>;

    virtual ~Application() = default;

    /// Shows `window`, also out of the minimised state, above the windows of every program, and gives it the keyboard
    /// focus whichever program has it. The focus follows from the event loop.
    virtual void bringToFront(QWindow &window) = 0;
    /// Gives the keyboard focus back to the program that had it before; to be called when no window of ours is left.
    virtual void hide() = 0;
    /// Called from the event loop whenever a program comes to the front.
    virtual void setActivationHandler(ActivationHandler handler) = 0;
    /// Ends the program in good order, from the event loop.
    virtual void terminate() = 0;
};
