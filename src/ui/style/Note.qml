// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// A caption in the secondary colour.
Text {
    textFormat: Text.PlainText
    wrapMode: Text.Wrap
    font.pixelSize: 11
    color: SystemColors.secondary
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
