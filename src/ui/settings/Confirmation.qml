// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Quillo

// Asks before something is destroyed. Escape and "Cancel" leave things as they are.
T.Popup {
    id: dialog

    property string title: ""
    property string message: ""
    property string action: ""

    property Item focusBefore: null

    signal confirmed

    parent: T.Overlay.overlay
    anchors.centerIn: parent
    width: 300
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: 20
    modal: true
    focus: true
    closePolicy: T.Popup.CloseOnEscape
    onAboutToShow: focusBefore = parent.Window.activeFocusItem
    onOpened: cancel.forceActiveFocus()
    onClosed: focusBefore?.forceActiveFocus(Qt.PopupFocusReason)

    T.Overlay.modal: Rectangle { color: Qt.rgba(0, 0, 0, 0.35) }

    background: RoundedRectangle {
        radius: 10
        color: SystemColors.window
        borderWidth: 1
        borderColor: SystemColors.controlBorder
    }

    contentItem: Column {
        spacing: 10
        Accessible.role: Accessible.AlertMessage
        Accessible.name: dialog.title + " " + dialog.message

        Text {
            width: parent.width
            text: dialog.title
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            font { pixelSize: 14; weight: Font.DemiBold }
            color: SystemColors.text
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        Note {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: dialog.message
        }
        Item {
            width: 1
            height: 2
        }
        PushButton {
            width: parent.width
            text: dialog.action
            isDestructive: true
            onClicked: {
                dialog.close();
                dialog.confirmed();
            }
        }
        PushButton {
            id: cancel

            width: parent.width
            text: qsTr("Cancel")
            onClicked: dialog.close()
        }
    }
}
