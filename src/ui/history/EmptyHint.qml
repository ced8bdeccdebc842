// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// What can be done where there is nothing to show.
Text {
    width: parent.width
    horizontalAlignment: Text.AlignHCenter
    wrapMode: Text.Wrap
    textFormat: Text.PlainText
    font: Paper.sans(13)
    color: Paper.secondary
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
