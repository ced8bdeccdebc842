// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// One group of the editor.
Rectangle {
    id: row

    required property int index
    required property string name

    signal rename(string name)
    signal remove
    // It has got the keyboard focus.
    signal reached
    // Pulled up or down by the pointer, which is there in the window, and let go.
    signal dragged(real sceneY)
    signal dropped
    signal moveBy(int step)

    color: index % 2 === 1 ? Qt.alpha(Paper.secondary, 0.08) : "transparent"
    opacity: drag.active ? 0.5 : 1

    // What is typed is the name already; writing it back would move the cursor.
    onNameChanged: {
        if (field.text !== name)
            show();
    }

    function show() {
        field.text = name;
        field.cursorPosition = 0; // the beginning of a long name tells more than its end
    }
    function takeFocus() {
        field.forceActiveFocus();
    }

    Image {
        id: grip

        anchors { left: parent.left; leftMargin: 6; verticalCenter: parent.verticalCenter }
        sourceSize { width: 12; height: 12 }
        source: "../style/symbols/line.3.horizontal.svg"

        HoverHandler { cursorShape: drag.active ? Qt.ClosedHandCursor : Qt.OpenHandCursor }
    }
    Item {
        width: field.x
        height: parent.height

        DragHandler {
            id: drag

            target: null
            xAxis.enabled: false
            onActiveTranslationChanged: {
                if (active)
                    row.dragged(centroid.scenePosition.y);
            }
            onActiveChanged: {
                if (!active)
                    row.dropped();
            }
        }
    }
    PaperField {
        id: field

        anchors { left: grip.right; leftMargin: 2; right: trash.left; verticalCenter: parent.verticalCenter }
        placeholderText: qsTr("Name")
        Component.onCompleted: row.show()
        onActiveFocusChanged: {
            if (activeFocus)
                row.reached();
        }
        onTextEdited: row.rename(text)
        Accessible.name: qsTr("Name of the group")
        Keys.onPressed: event => {
            event.accepted = event.modifiers & Qt.AltModifier && (event.key === Qt.Key_Up || event.key === Qt.Key_Down);
            if (event.accepted)
                row.moveBy(event.key === Qt.Key_Up ? -1 : 1);
        }
    }
    KeyButton {
        id: trash

        anchors { right: parent.right; rightMargin: 8; verticalCenter: parent.verticalCenter }
        width: 22
        height: 22
        focusPolicy: Qt.TabFocus // a click leaves no focus behind for the next row's
        opacity: down ? 0.5 : 1
        onClicked: row.remove()
        onDoubleClicked: row.reached() // the next row has moved under the second click: that one deletes nothing
        onActiveFocusChanged: {
            if (activeFocus)
                row.reached();
        }
        Accessible.name: qsTr("Delete group")
        Accessible.description: row.name

        contentItem: Image {
            sourceSize { width: 14; height: 14 }
            fillMode: Image.Pad
            source: "../style/symbols/trash.svg"
        }
        background: Item {
            FocusRing { visible: trash.visualFocus; anchors.margins: 0; corner: 2; ringColor: Paper.accent }
        }
        Tip { visible: trash.hovered; text: qsTr("Delete group") }
    }
}
