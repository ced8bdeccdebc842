// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Quillo

// The field that narrows the list.
Item {
    id: search

    property alias text: field.text
    readonly property alias field: field

    implicitHeight: 16 + 24 + 4

    // Takes the keyboard focus with what has been typed elsewhere.
    function type(text: string) {
        field.forceActiveFocus();
        field.insert(field.length, text);
    }

    Item {
        anchors { fill: parent; leftMargin: 24; rightMargin: 24; topMargin: 16; bottomMargin: 4 }

        FocusRing { visible: field.activeFocus; anchors.margins: -2; corner: 3; ringColor: Paper.accent }

        Image {
            id: symbol

            anchors { left: parent.left; leftMargin: 2; verticalCenter: parent.verticalCenter }
            sourceSize { width: 14; height: 14 }
            source: "../style/symbols/magnifyingglass.svg"
        }
        T.TextField {
            id: field

            anchors { left: symbol.right; leftMargin: 8; right: clear.left; top: parent.top; bottom: parent.bottom }
            font: Paper.sans(14)
            color: Paper.primary
            selectionColor: Paper.accent
            selectedTextColor: Paper.background
            placeholderText: qsTr("Search transcriptions")
            placeholderTextColor: Paper.secondary
            verticalAlignment: TextInput.AlignVCenter
            selectByMouse: true
            Accessible.name: placeholderText

            Text {
                visible: field.text === "" && field.preeditText === ""
                anchors.verticalCenter: parent.verticalCenter
                text: field.placeholderText
                font: field.font
                color: field.placeholderTextColor
            }
        }
        KeyButton {
            id: clear

            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            width: 20
            height: 20
            enabled: field.text !== ""
            opacity: enabled ? 1 : 0
            visible: opacity > 0
            focusPolicy: Qt.TabFocus
            Accessible.name: qsTr("Clear search")
            onClicked: {
                field.clear();
                field.forceActiveFocus();
            }
            Behavior on opacity { NumberAnimation { duration: 150 } }

            contentItem: Image {
                sourceSize { width: 14; height: 14 }
                fillMode: Image.Pad
                source: "../style/symbols/xmark.circle.fill.svg"
            }
            background: Item {
                FocusRing { visible: clear.visualFocus; anchors.margins: 0; corner: 4; ringColor: Paper.accent }
            }
        }
    }
}
