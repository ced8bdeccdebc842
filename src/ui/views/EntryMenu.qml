// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import QtQml.Models
import Quillo

// The context menu of an entry.
PaperMenu {
    id: menu

    required property HistoryModel history
    property int row: -1
    property var targets: []

    function openFor(item, position) {
        row = item.index;
        targets = history.moveTargets(row);
        const place = item.mapToItem(null, position.x, position.y);
        parent = item.Window.contentItem;
        popup(parent, place.x, place.y);
    }

    PaperMenuItem {
        text: "Copy"
        onTriggered: menu.history.copy(menu.row)
    }
    PaperMenu {
        id: moveMenu

        title: "Move to Group"

        Instantiator {
            model: menu.targets
            onObjectAdded: (index, object) => moveMenu.insertItem(index, object as PaperMenuItem)
            onObjectRemoved: (index, object) => moveMenu.removeItem(object as PaperMenuItem)

            delegate: PaperMenuItem {
                required property var modelData

                text: modelData.name
                enabled: modelData.isEnabled
                onTriggered: menu.history.move(menu.row, modelData.groupId)
            }
        }
    }
    T.MenuSeparator {
        padding: 4
        implicitHeight: 9
        contentItem: Rectangle { implicitHeight: 1; color: Paper.divider }
    }
    PaperMenuItem {
        text: "Delete"
        isDestructive: true
        onTriggered: menu.history.remove(menu.row)
    }
}
