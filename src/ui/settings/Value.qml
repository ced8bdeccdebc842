// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// A value beside a button. All digits are equally wide, so that a number that changes does not move its neighbours.
Text {
    anchors.verticalCenter: parent !== null ? parent.verticalCenter : undefined
    textFormat: Text.PlainText
    font: InterfaceFont.figures(13)
    color: SystemColors.secondary
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
