// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Quillo

// A text field on paper.
T.TextField {
    id: field

    property bool isBordered: false

    implicitHeight: 24
    leftPadding: 7
    rightPadding: 7
    verticalAlignment: TextInput.AlignVCenter
    font: Paper.sans(13)
    color: Paper.primary
    selectionColor: Paper.accent
    selectedTextColor: Paper.background
    placeholderTextColor: Paper.secondary
    selectByMouse: true
    Accessible.name: placeholderText

    Text {
        visible: field.text === "" && field.preeditText === ""
        anchors { left: parent.left; leftMargin: 7; verticalCenter: parent.verticalCenter }
        text: field.placeholderText
        font: field.font
        color: field.placeholderTextColor
    }

    background: RoundedRectangle {
        radius: 5
        color: field.isBordered ? "white" : "transparent"
        borderWidth: field.isBordered ? 1 : 0
        borderColor: Paper.faded

        FocusRing { visible: field.activeFocus; anchors.margins: -1; corner: 3; ringColor: Paper.accent }
    }
}
