// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// One entry of the history.
FocusScope {
    id: row

    required property string entryId
    required property string text
    required property int day
    required property int month
    required property string meta
    required property bool isCopied
    required property bool showDivider
    readonly property bool isCurrent: ListView.isCurrentItem
    readonly property ListView list: ListView.view as ListView
    readonly property EntryPiece shortText: content.item as EntryPiece
    readonly property LongEntryText longText: content.item as LongEntryText
    readonly property string selectedText: shortText?.selectedText ?? longText?.selectedText ?? ""
    // A text up to this length is laid out at once.
    readonly property bool isLong: text.length > 4000

    signal copy
    signal menuRequested(point position)
    signal pressed

    onEntryIdChanged: {
        shortText?.deselect();
        longText?.deselect();
    }

    function selectAll() {
        shortText?.selectAll();
        longText?.selectAll();
    }

    // A row that is kept for later use is none that can be heard of or pressed.
    ListView.onPooled: visible = false
    ListView.onReused: visible = true

    height: content.y + content.height + 10 + pill.height + 18

    Accessible.role: Accessible.ListItem
    Accessible.name: text + ", " + meta
    Accessible.focusable: true
    Accessible.selectable: true
    Accessible.selected: isCurrent
    Accessible.onPressAction: copy()

    // Square, not a FocusRing: that is painted into an image, and a row may be as tall as 20,000 words.
    Rectangle {
        anchors { fill: parent; leftMargin: 8; rightMargin: 8; topMargin: 4; bottomMargin: 4 }
        visible: row.activeFocus && !pill.activeFocus
        color: "transparent"
        border.width: 2
        border.color: Paper.accent
    }

    DiagonalDate {
        x: 24
        y: 18 + 3
        day: row.day
        month: row.month
    }

    Loader {
        id: content

        x: 24 + 44 + 16
        y: 18
        width: row.width - x - 24
        height: Math.max(row.shortText?.textHeight ?? row.longText?.textHeight ?? 0, 56 + 3 - 10 - pill.height)
        sourceComponent: row.isLong ? longForm : shortForm
    }
    Component {
        id: shortForm

        EntryPiece {
            content: row.text
            onPressed: row.pressed()
        }
    }
    Component {
        id: longForm

        LongEntryText {
            text: row.text
            onPressed: row.pressed()
            visibleTop: row.list.contentY - row.y - content.y
            visibleBottom: visibleTop + row.list.height
        }
    }

    MetaLabel {
        anchors { left: content.left; right: pill.left; rightMargin: 8; verticalCenter: pill.verticalCenter }
        label: row.meta
        Accessible.ignored: true
    }
    CopyPill {
        id: pill

        anchors { right: content.right; top: content.bottom; topMargin: 10 }
        isCopied: row.isCopied
        focusPolicy: row.isCurrent ? Qt.StrongFocus : Qt.ClickFocus
        onClicked: row.copy()
    }

    Rectangle {
        visible: row.showDivider
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; leftMargin: 24; rightMargin: 24 }
        height: 1
        color: Paper.divider
    }

    PointHandler {
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        onActiveChanged: {
            if (active)
                row.pressed();
        }
    }
    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: eventPoint => row.menuRequested(eventPoint.position)
    }
}
