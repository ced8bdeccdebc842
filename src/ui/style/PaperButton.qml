// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// A bordered button that stays light, whatever the desktop's scheme.
PushButton {
    ground: Qt.lighter(Paper.background, 1.05)
    ink: Paper.primary
    edge: Paper.faded
    ring: Paper.accent
}
