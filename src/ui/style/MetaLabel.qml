// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// A label in small tracked capitals.
Text {
    property string label: ""

    text: label.toUpperCase()
    textFormat: Text.PlainText
    font: Paper.sansMedium(10, 1.5)
    color: Paper.secondary
    elide: Text.ElideRight
    Accessible.role: Accessible.StaticText
    Accessible.name: label
}
