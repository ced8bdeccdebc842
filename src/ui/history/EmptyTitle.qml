// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// The first line where there is nothing to show.
Text {
    width: parent.width
    horizontalAlignment: Text.AlignHCenter
    wrapMode: Text.Wrap
    textFormat: Text.PlainText
    font: Paper.italic(28)
    color: Paper.secondary
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
