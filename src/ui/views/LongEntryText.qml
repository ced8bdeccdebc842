// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// A very long text. Only the pieces that have come near the visible part of the list exist; the others are as high as their length
// lets expect.
Column {
    id: column

    required property list<string> pieces
    // The visible part of the list, in this item's coordinates.
    property real visibleTop: 0
    property real visibleBottom: 0
    property string selectedText: ""
    readonly property real textHeight: implicitHeight

    signal pressed

    Repeater {
        model: column.pieces

        delegate: Loader {
            id: loader

            required property int index
            required property string modelData
            // Characters of Helvetica at 14 points are 6.6 points wide on average.
            readonly property real expectedHeight: Math.ceil(modelData.length * 6.6 / Math.max(column.width, 100)) * 20
            // At the top, all but the first have not got their place yet.
            readonly property bool isNear: (y > 0 || index === 0) && y < column.visibleBottom + 400
                                           && y + expectedHeight > column.visibleTop - 400

            width: column.width
            height: item !== null ? item.textHeight + 4 : expectedHeight
            // What has been seen stays, so that nothing above the visible part changes its height again.
            active: false
            onIsNearChanged: {
                if (isNear)
                    active = true;
            }
            sourceComponent: EntryPiece {
                width: loader.width
                content: loader.modelData
                onPressed: column.pressed()
                onSelectedTextChanged: column.selectedText = selectedText
            }
        }
    }
}
