// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// A value beside a button. The interface faces set all digits equally wide.
Text {
    anchors.verticalCenter: parent !== null ? parent.verticalCenter : undefined
    textFormat: Text.PlainText
    font.pixelSize: 13
    color: SystemColors.secondary
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
