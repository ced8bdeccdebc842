// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// A very long text. Only the pieces that have come near the visible part of the list exist. They show one selection, whose ends are
// places in the whole text.
Item {
    id: view

    required property string text
    // The visible part of the list, in this item's coordinates.
    property real visibleTop: 0
    property real visibleBottom: 0
    readonly property real textHeight: column.height - 4
    // Where the selection began, and where it ends now.
    property int anchor: 0
    property int cursor: 0
    readonly property int selectionStart: Math.min(anchor, cursor)
    readonly property int selectionEnd: Math.max(anchor, cursor)
    readonly property string selectedText: text.substring(selectionStart, selectionEnd)

    signal pressed

    onTextChanged: deselect()

    function select(from, to) {
        anchor = from;
        cursor = to;
    }
    function selectAll() {
        select(0, text.length);
    }
    function deselect() {
        select(0, 0);
    }
    // The piece at a height, of those that have got their place; and the place in the text at a point.
    function pieceAt(y) {
        let found = repeater.itemAt(0) as LongEntryPiece;
        for (let i = 1; i < repeater.count; ++i) {
            const next = repeater.itemAt(i) as LongEntryPiece;
            if (next.y === 0 || next.y > y)
                break;
            found = next;
        }
        return found;
    }
    function placeAt(x, y) {
        const loader = pieceAt(y);
        if (loader === null)
            return text.length;
        const piece = loader.item as EntryPiece;
        return loader.start + (piece !== null ? piece.positionAt(x, y - loader.y) : 0);
    }
    function selectWord(x, y) {
        const loader = pieceAt(y);
        const piece = loader !== null ? loader.item as EntryPiece : null;
        if (piece === null)
            return;
        piece.cursorPosition = piece.positionAt(x, y - loader.y);
        piece.selectWord();
        select(loader.start + piece.selectionStart, loader.start + piece.selectionEnd);
    }

    TextPieces {
        id: pieces

        text: view.text
        width: view.width
        font: Paper.sans(14)
        lineSpacing: 4
    }

    Column {
        id: column

        Repeater {
            id: repeater

            model: pieces

            delegate: LongEntryPiece {
                width: view.width
                visibleTop: view.visibleTop
                visibleBottom: view.visibleBottom
                selectionStart: view.selectionStart
                selectionEnd: view.selectionEnd
            }
        }
        Item {
            width: 1
            height: pieces.restHeight
        }
    }

    MouseArea {
        anchors.fill: parent
        cursorShape: Qt.IBeamCursor
        preventStealing: true
        onPressed: mouse => {
            view.pressed();
            view.cursor = view.placeAt(mouse.x, mouse.y);
            if (!(mouse.modifiers & Qt.ShiftModifier))
                view.anchor = view.cursor;
        }
        onPositionChanged: mouse => view.cursor = view.placeAt(mouse.x, mouse.y)
        onDoubleClicked: mouse => view.selectWord(mouse.x, mouse.y)
    }
}
