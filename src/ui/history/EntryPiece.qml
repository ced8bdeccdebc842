// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// Selectable text with four points between its lines.
TextEdit {
    id: piece

    property alias content: filler.text
    // The last line has nothing below it to keep away from.
    readonly property real textHeight: contentHeight - filler.lineSpacing

    signal pressed

    readOnly: true
    selectByMouse: true
    persistentSelection: true
    activeFocusOnPress: false
    wrapMode: TextEdit.Wrap
    textFormat: TextEdit.PlainText
    font: Paper.sans(14)
    color: Paper.primary
    selectionColor: Paper.accent
    selectedTextColor: Paper.background
    Accessible.ignored: true

    PointHandler {
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        onActiveChanged: {
            if (active)
                piece.pressed();
        }
    }
    EntryText {
        id: filler

        lineSpacing: 4
        document: piece.textDocument
    }
}
