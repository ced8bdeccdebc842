// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// A row of the form: a label on the left, controls on the right, a hairline above all but the first.
Item {
    id: row

    property string label: ""
    property string detail: ""
    default property alias controls: controls.data

    width: parent !== null ? parent.width : 0
    height: Math.max(40, texts.height + 16, controls.height + 14)

    Rectangle {
        visible: row.y > 0
        x: 10
        width: parent.width - 20
        height: 1
        color: SystemColors.separator
    }
    Column {
        id: texts

        anchors { left: parent.left; leftMargin: 10; right: controls.left; rightMargin: 12; verticalCenter: parent.verticalCenter }
        spacing: 2

        Text {
            width: parent.width
            text: row.label
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            font.pixelSize: 13
            color: SystemColors.text
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        Note {
            visible: row.detail !== ""
            width: parent.width
            text: row.detail
        }
    }
    Row {
        id: controls

        anchors { right: parent.right; rightMargin: 10; verticalCenter: parent.verticalCenter }
        spacing: 10
    }
}
