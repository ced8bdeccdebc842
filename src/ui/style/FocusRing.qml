// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// Drawn around what has the keyboard focus; a child of its background.
RoundedRectangle {
    property color ringColor: SystemColors.accent
    // The corner radius of what it surrounds.
    property real corner: 6

    anchors.fill: parent
    anchors.margins: -3
    radius: corner + 3
    color: "transparent"
    borderWidth: 2
    borderColor: ringColor
    z: 1
}
