// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// A piece of a very long text: room for it, and the text once it comes near the visible part of the list.
Loader {
    id: loader

    required property int start
    required property bool isFirst
    required property string content
    required property real pieceHeight
    // The visible part of the list, in the coordinates of the whole text, and the selection in that text.
    property real visibleTop: 0
    property real visibleBottom: 0
    property int selectionStart: 0
    property int selectionEnd: 0
    readonly property int from: Math.max(0, Math.min(content.length, selectionStart - start))
    readonly property int to: Math.max(0, Math.min(content.length, selectionEnd - start))
    // Those at the top have not got their place yet, but for the first.
    readonly property EntryPiece piece: item as EntryPiece
    readonly property bool isNear: (y > 0 || isFirst) && y < visibleBottom + 400 && y + pieceHeight > visibleTop - 400

    height: piece !== null ? piece.textHeight + 4 : pieceHeight
    // What has been seen stays, so that scrolling back costs nothing.
    active: false
    onIsNearChanged: {
        if (isNear)
            active = true;
    }
    onContentChanged: {
        if (!isNear)
            active = false;
    }
    onFromChanged: mark()
    onToChanged: mark()
    onLoaded: mark()

    function mark() {
        piece?.select(from, to);
    }

    sourceComponent: EntryPiece {
        width: loader.width
        content: loader.content
        selectByMouse: false
        onContentChanged: loader.mark()
    }
}
