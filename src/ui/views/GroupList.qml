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
        // Where a dragged row would go: before this one. Less than zero while nothing is dragged.
        property int dropIndex: -1

        anchors { fill: parent; margins: 1 }
        clip: true
        model: frame.groups
        boundsBehavior: Flickable.StopAtBounds
        Accessible.role: Accessible.List
        Accessible.name: "Groups"

        T.ScrollBar.vertical: PaperScrollBar {}

        delegate: GroupRow {
            width: list.width
            height: list.rowHeight
            onRename: name => frame.groups.rename(index, name)
            onRemove: frame.groups.remove(index)
            onDragged: distance => list.dropIndex = Math.max(0, Math.min(list.count, index + (distance > 0 ? 1 : 0) + Math.round(distance / list.rowHeight)))
            onDropped: list.drop(index)
            onMoveBy: step => list.moveBy(index, step)
        }

        function drop(row) {
            const destination = dropIndex;
            dropIndex = -1;
            if (destination >= 0)
                frame.groups.move(row, destination);
        }
        function moveBy(row, step) {
            const place = row + step;
            if (place < 0 || place >= count)
                return;
            frame.groups.move(row, step > 0 ? place + 1 : place);
            (itemAtIndex(place) as GroupRow).takeFocus();
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
