// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Quillo

// A tooltip on paper.
T.ToolTip {
    id: tip

    x: parent !== null ? (parent.width - width) / 2 : 0
    y: -height - 4
    implicitWidth: implicitContentWidth + 12
    implicitHeight: implicitContentHeight + 8
    horizontalPadding: 6
    verticalPadding: 4
    margins: 4
    delay: 700
    font: Paper.sans(11)

    contentItem: Text { text: tip.text; font: tip.font; color: Paper.background }
    background: RoundedRectangle { radius: 4; color: Paper.primary }
}
