// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Quillo

// The search field and the rows, scrolling together.
Item {
    id: entries

    required property HistoryModel history

    clip: true

    function startSearch() {
        list.positionViewAtBeginning();
        search.field.forceActiveFocus();
        search.field.selectAll();
    }
    function showNewest() {
        list.currentIndex = 0;
        list.positionViewAtBeginning();
    }

    function take(row: int) {
        list.currentIndex = row;
        list.forceActiveFocus();
    }

    SearchField {
        id: search

        y: list.originY - list.contentY
        z: 1
        width: parent.width
        text: entries.history.search
        onTextChanged: entries.history.search = text
        field.Keys.onDownPressed: list.forceActiveFocus()
    }

    ListView {
        id: list

        anchors.fill: parent
        model: entries.history.rows
        // The search field lies above the list, so that it has a keyboard focus of its own; this is its room.
        header: Item { width: 1; height: search.implicitHeight }
        footer: Item { width: 1; height: 16 }
        reuseItems: true
        cacheBuffer: 300
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        keyNavigationEnabled: true
        activeFocusOnTab: true
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Entries")

        T.ScrollBar.vertical: PaperScrollBar {}

        delegate: EntryRow {
            width: list.width
            required property int index

            onCopy: entries.history.copy(entryId)
            onPressed: entries.take(index)
            onMenuRequested: position => list.openMenu(this, position)
        }

        Keys.onPressed: event => {
            event.accepted = true;
            if (event.matches(StandardKey.Copy))
                copy(currentItem as EntryRow);
            else if (event.matches(StandardKey.SelectAll))
                (currentItem as EntryRow)?.selectAll();
            else if (event.key === Qt.Key_Delete)
                remove(currentItem as EntryRow, event.isAutoRepeat);
            else if (event.key === Qt.Key_Menu || (event.key === Qt.Key_F10 && event.modifiers & Qt.ShiftModifier))
                openMenu(currentItem, Qt.point(80, 40));
            else if (event.key === Qt.Key_Home)
                currentIndex = 0;
            else if (event.key === Qt.Key_End)
                currentIndex = count - 1;
            else if (event.key === Qt.Key_PageDown || event.key === Qt.Key_PageUp)
                page(event.key === Qt.Key_PageDown ? 1 : -1);
            else if (event.key === Qt.Key_Up && currentIndex === 0)
                search.field.forceActiveFocus();
            else if (event.text > " " && !(event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier)))
                search.type(event.text);
            else
                event.accepted = false;
        }

        function copy(row) {
            if (row !== null && row.selectedText !== "")
                entries.history.copyText(row.selectedText);
            else if (row !== null)
                entries.history.copy(row.entryId);
        }
        // A key held down deletes one entry, not those that move up to its place.
        function remove(row, isAutoRepeat) {
            if (row !== null && !isAutoRepeat)
                entries.history.remove(row.entryId);
        }
        function page(direction) {
            const next = indexAt(10, Math.max(originY, contentY + direction * height) + height / 2);
            currentIndex = next >= 0 ? next : direction > 0 ? count - 1 : 0;
        }
        function openMenu(item, position) {
            if (item !== null)
                menu.open(item, position);
        }

        Connections {
            target: entries.history
            function onSearchChanged() {
                entries.showNewest();
            }
        }
    }

    Column {
        visible: entries.history.rows.count === 0 && !entries.history.isSearching
        y: search.height + 60
        x: 24
        width: parent.width - 48
        spacing: 12

        EmptyTitle { text: qsTr("No matches.") }
        EmptyHint { text: qsTr("Try a different search.") }
    }

    EntryMenuLoader {
        id: menu

        history: entries.history
    }
}
