// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Quillo

// The groups, to be renamed in place, dragged into another order and deleted.
Rectangle {
    id: frame

    required property GroupEditorModel groups

    color: "white"
    border.width: 1
    border.color: Paper.faded

    ListView {
        id: list

        readonly property int rowHeight: 30
        property bool isDragging: false
        // Escape has ended the dragging; what the pointer does until it lets go moves nothing.
        property bool isDragCancelled: false
        // Where the pointer has a dragged row, from the top of the list.
        property real pointerY: 0
        // Where the dragged row would go: before this one. Less than zero while nothing is dragged.
        readonly property int dropIndex: isDragging ? Math.max(0, Math.min(count, Math.round((contentY + pointerY) / rowHeight))) : -1
        // What a row dragged to an edge pulls the list along, in points a step.
        readonly property int pull: !isDragging ? 0 : pointerY < rowHeight ? -6 : pointerY > height - rowHeight ? 6 : 0

        anchors { fill: parent; margins: 1 }
        clip: true
        model: frame.groups
        // Every row exists, in order, so that Tab goes from one to the next.
        cacheBuffer: count * rowHeight
        boundsBehavior: Flickable.StopAtBounds
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Groups")

        T.ScrollBar.vertical: PaperScrollBar {}

        delegate: GroupRow {
            width: list.width
            height: list.rowHeight
            onRename: name => frame.groups.rename(index, name)
            onRemove: list.remove(index)
            onReached: list.positionViewAtIndex(index, ListView.Contain)
            onDragged: sceneY => {
                list.pointerY = list.mapFromItem(null, 0, sceneY).y;
                list.isDragging = !list.isDragCancelled;
            }
            onDropped: list.drop(index)
            onMoveBy: step => list.moveBy(index, step)
        }

        function remove(row) {
            frame.groups.remove(row);
            frame.forceActiveFocus(); // the row that moves up is not to get the next key
        }
        function drop(row) {
            const destination = dropIndex;
            isDragging = false;
            isDragCancelled = false;
            if (destination >= 0)
                frame.groups.move(row, destination);
        }
        function moveBy(row, step) {
            const place = row + step;
            if (place < 0 || place >= count)
                return;
            frame.groups.move(row, step > 0 ? place + 1 : place);
            positionViewAtIndex(place, ListView.Contain);
            (itemAtIndex(place) as GroupRow)?.takeFocus();
        }

        Shortcut {
            sequence: "Escape"
            enabled: list.isDragging
            onActivated: {
                list.isDragCancelled = true;
                list.isDragging = false;
            }
        }
        Timer {
            interval: 16
            repeat: true
            running: list.pull !== 0
            onTriggered: list.contentY = Math.max(0, Math.min(list.contentHeight - list.height, list.contentY + list.pull))
        }
        Connections {
            target: frame.groups
            function onRowsInserted() {
                reveal.start();
            }
        }
        // Once the list has made the row.
        Timer {
            id: reveal

            interval: 0
            onTriggered: list.positionViewAtIndex(list.count - 1, ListView.Contain)
        }

        Rectangle {
            visible: list.dropIndex >= 0
            parent: list.contentItem
            y: list.dropIndex * list.rowHeight - 1
            z: 2
            width: list.width
            height: 2
            color: Paper.accent
        }
    }
}
