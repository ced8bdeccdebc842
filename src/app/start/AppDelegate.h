// SPDX-License-Identifier: MIT
#pragma once

class Composition;

/// What the program does at the moments of its life.
class AppDelegate {
public:
    explicit AppDelegate(Composition &composition) : m_composition(composition) {}

    /// The event loop is about to run.
    void applicationDidFinishLaunching();

private:
    Composition &m_composition;
};
