// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// A rectangle with rounded corners that are smooth at every scale. It is painted into an image of its size, so it is for
// what is not much larger than a window.
Item {
    property alias color: shape.color
    property alias radius: shape.radius
    property alias borderWidth: shape.borderWidth
    property alias borderColor: shape.borderColor

    RoundedShape {
        id: shape

        anchors { fill: parent; margins: -margin }
    }
}
