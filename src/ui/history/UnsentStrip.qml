// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// Recordings that couldn't be sent, and what can be done with them.
Item {
    id: strip

    required property UnsentProperties unsent

    visible: unsent.count > 0
    height: visible ? Math.max(sentence.implicitHeight, buttons.height) + 12 : 0

    Text {
        id: sentence

        anchors { left: parent.left; right: buttons.left; rightMargin: 12; verticalCenter: parent.verticalCenter }
        text: strip.unsent.isSending ? qsTr("Sending again…")
            : strip.unsent.count === 1 ? qsTr("One recording couldn't be sent.")
                                       : qsTr("%n recordings couldn't be sent.", "", strip.unsent.count)
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        font: Paper.sans(13)
        color: Paper.accent
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    Row {
        id: buttons

        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        spacing: 8

        PillButtonStyle {
            text: qsTr("Send again")
            enabled: !strip.unsent.isSending
            onClicked: strip.unsent.sendAgain()
        }
        PillButtonStyle {
            text: qsTr("Delete")
            onClicked: strip.unsent.deleteAll()
        }
    }
}
