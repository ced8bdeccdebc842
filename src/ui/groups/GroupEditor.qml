// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Quillo

// The sheet in which groups are made, named, ordered and deleted. Every change is stored at once.
T.Popup {
    id: sheet

    required property GroupEditorModel groups
    required property HistoryWindow historyWindow
    property Item focusBefore: null

    parent: T.Overlay.overlay
    anchors.centerIn: parent
    width: 360
    height: 440
    padding: 20
    modal: true
    focus: true
    closePolicy: T.Popup.CloseOnEscape

    onAboutToShow: {
        groups.newName = "";
        focusBefore = parent.Window.activeFocusItem;
    }
    onClosed: {
        dismiss();
        focusBefore?.forceActiveFocus(Qt.PopupFocusReason);
    }
    Component.onCompleted: follow()

    function dismiss() {
        historyWindow.isEditingGroups = false;
    }
    function follow() {
        if (historyWindow.isEditingGroups)
            open();
        else
            close();
    }

    Connections {
        target: sheet.historyWindow
        function onIsEditingGroupsChanged() {
            sheet.follow();
        }
    }

    T.Overlay.modal: Rectangle { color: Qt.rgba(0, 0, 0, 0.28) }

    background: RoundedRectangle {
        radius: 10
        color: Paper.background
        borderWidth: 1
        borderColor: Paper.divider
    }

    contentItem: Item {
        Accessible.role: Accessible.Dialog
        Accessible.name: title.text

        Text {
            id: title

            text: qsTr("Groups")
            font: Paper.black(28)
            color: Paper.primary
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        Text {
            id: explanation

            anchors { top: title.bottom; topMargin: 14; left: parent.left; right: parent.right }
            text: qsTr("Dictations go into the selected group. Deleting a group keeps its entries under All entries.")
            wrapMode: Text.Wrap
            font.pixelSize: 12
            color: Paper.primary
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        GroupList {
            id: list

            anchors {
                top: explanation.bottom; topMargin: 14; bottom: adding.top; bottomMargin: 14
                left: parent.left; right: parent.right
            }
            groups: sheet.groups
        }
        Item {
            id: adding

            anchors { left: parent.left; right: parent.right; bottom: done.top; bottomMargin: 14 }
            height: 24

            PaperField {
                anchors { left: parent.left; right: add.left; rightMargin: 8; top: parent.top; bottom: parent.bottom }
                focus: true
                isBordered: true
                placeholderText: qsTr("New group")
                text: sheet.groups.newName
                onTextEdited: sheet.groups.newName = text
                onAccepted: sheet.groups.add()
            }
            PaperButton {
                id: add

                anchors.right: parent.right
                text: qsTr("Add")
                enabled: sheet.groups.canAdd
                onClicked: sheet.groups.add()
            }
        }
        PaperButton {
            id: done

            anchors { right: parent.right; bottom: parent.bottom }
            text: qsTr("Done")
            onClicked: sheet.dismiss()
        }
    }
}
