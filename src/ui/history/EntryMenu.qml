// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import QtQml.Models
import Quillo

// The context menu of an entry.
PaperMenu {
    id: entryMenu // an item of a menu calls its own menu `menu`

    required property HistoryModel history
    // The entry, whatever row it has by the time of the choice.
    property string entryId: ""
    property list<moveTarget> targets
    property Item focusBefore: null

    onAboutToShow: focusBefore = parent.Window.activeFocusItem
    onClosed: focusBefore?.forceActiveFocus(Qt.PopupFocusReason)

    function openFor(item, position) {
        entryId = item.entryId;
        targets = history.moveTargets(entryId);
        const place = item.mapToItem(null, position.x, position.y);
        parent = item.Window.contentItem;
        popup(parent, place.x, place.y);
    }

    PaperMenuItem {
        text: qsTr("Copy")
        onTriggered: entryMenu.history.copy(entryMenu.entryId)
    }
    PaperMenu {
        id: moveMenu

        title: qsTr("Move to Group")

        Instantiator {
            model: entryMenu.targets
            onObjectAdded: (index, object) => moveMenu.insertItem(index, object as PaperMenuItem)
            onObjectRemoved: (index, object) => moveMenu.removeItem(object as PaperMenuItem)

            delegate: PaperMenuItem {
                required property moveTarget modelData

                text: modelData.name
                enabled: modelData.isEnabled
                onTriggered: entryMenu.history.move(entryMenu.entryId, modelData.groupId)
            }
        }
    }
    T.MenuSeparator {
        padding: 4
        implicitHeight: 9
        contentItem: Rectangle { implicitHeight: 1; color: Paper.divider }
    }
    PaperMenuItem {
        text: qsTr("Delete")
        isDestructive: true
        onTriggered: entryMenu.history.remove(entryMenu.entryId)
    }
}
