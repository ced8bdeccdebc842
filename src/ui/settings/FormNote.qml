// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// A note, or a warning with its sign, that is a row of the form.
Item {
    id: row

    property string text: ""
    property bool isWarning: false

    width: parent !== null ? parent.width : 0
    height: visible ? Math.max(label.height, 14) + 16 : 0

    Rectangle {
        visible: row.y > 0
        x: 10
        width: parent.width - 20
        height: 1
        color: SystemColors.separator
    }
    Image {
        id: sign

        visible: row.isWarning
        anchors { left: parent.left; leftMargin: 10; verticalCenter: parent.verticalCenter }
        sourceSize { width: 14; height: 14 }
        source: SystemColors.isDark ? "../style/symbols/exclamationmark.triangle.fill.svg" : "../style/symbols/exclamationmark.triangle.fill.light.svg"
    }
    Note {
        id: label

        anchors { left: row.isWarning ? sign.right : parent.left; leftMargin: row.isWarning ? 6 : 10; right: parent.right; rightMargin: 10; verticalCenter: parent.verticalCenter }
        text: row.text
        color: row.isWarning ? SystemColors.orange : SystemColors.secondary
        Accessible.role: row.isWarning ? Accessible.AlertMessage : Accessible.StaticText
    }
}
