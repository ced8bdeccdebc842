// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// A very long text. Only the pieces near the visible part of the list exist; the others are as high as their length
// lets expect, or as they were when they were last seen.
Column {
    id: column

    required property list<string> pieces
    // The visible part of the list, in this item's coordinates.
    property real visibleTop: 0
    property real visibleBottom: 0
    property string selectedText: ""

    Repeater {
        model: column.pieces

        delegate: Loader {
            id: loader

            required property string modelData
            // Characters of Helvetica at 14 points are 6.6 points wide on average.
            property real expectedHeight: Math.ceil(modelData.length * 6.6 / Math.max(column.width, 100)) * 20

            width: column.width
            height: item !== null ? item.height + 4 : expectedHeight
            active: y < column.visibleBottom + 400 && y + height > column.visibleTop - 400
            onHeightChanged: {
                if (item !== null)
                    expectedHeight = height;
            }
            sourceComponent: EntryPiece {
                width: loader.width
                content: loader.modelData
                onSelectedTextChanged: column.selectedText = selectedText
            }
        }
    }
}
