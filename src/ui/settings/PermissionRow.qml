// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// One permission: allowed, or a button that helps to allow it.
FormRow {
    id: row

    property bool isGranted: false

    signal fix

    Image {
        visible: row.isGranted
        anchors.verticalCenter: parent.verticalCenter
        sourceSize { width: 15; height: 15 }
        source: SystemColors.isDark ? "../style/symbols/checkmark.circle.fill.svg" : "../style/symbols/checkmark.circle.fill.light.svg"
    }
    Value {
        visible: row.isGranted
        text: qsTr("Allowed")
        color: SystemColors.green
    }
    PushButton {
        visible: !row.isGranted
        text: qsTr("Allow…")
        onClicked: row.fix()
        Accessible.name: qsTr("Allow %1").arg(row.label)
    }
}
