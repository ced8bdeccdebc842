// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// A capsule, or a dot, with even edges at every scale.
Item {
    property alias color: shape.color

    CapsuleShape {
        id: shape

        anchors { fill: parent; margins: -1 }
    }
}
