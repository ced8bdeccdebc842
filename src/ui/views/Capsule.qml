// SPDX-License-Identifier: MIT
import QtQuick

// A capsule, or a dot. The software renderer rounds the radius of a rectangle down to whole points, which shows on
// small ones; so this one is drawn four times as large and scaled.
Item {
    property alias color: shape.color

    Rectangle {
        id: shape

        width: parent.width * 4
        height: parent.height * 4
        radius: Math.min(width, height) / 2
        scale: 0.25
        transformOrigin: Item.TopLeft
        antialiasing: true
    }
}
