// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Quillo

// One choice of a menu on paper.
T.MenuItem {
    id: item

    property bool isDestructive: false

    implicitWidth: Math.min(272, label.implicitWidth + leftPadding + rightPadding + (subMenu !== null ? 16 : 0))
    implicitHeight: 26
    leftPadding: 10
    rightPadding: 10
    opacity: enabled ? 1 : 0.4
    font: Paper.sans(13)
    Accessible.onPressAction: triggered()

    contentItem: Text {
        id: label

        text: item.text
        textFormat: Text.PlainText
        font: item.font
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
        color: item.highlighted ? Paper.background : item.isDestructive ? Paper.accent : Paper.primary
    }

    arrow: Text {
        visible: item.subMenu !== null
        anchors { right: parent.right; rightMargin: 8; verticalCenter: parent.verticalCenter }
        text: "›"
        font: Paper.sans(15)
        color: label.color
    }

    background: RoundedRectangle {
        radius: 4
        color: item.highlighted ? item.isDestructive ? Paper.accent : Paper.primary : "transparent"
    }
}
