// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

/// Which display the program runs on: $QUILLO_PLATFORM (x11 or wayland), else what the session offers.
class DisplayChoice {
public:
    /// A sentence for the user when there is no display the program can run on. May be called before there is a
    /// QGuiApplication.
    static std::optional<QString> refusal();
    /// Points Qt at the display; to be called before the QGuiApplication exists.
    static void prepare();
};
