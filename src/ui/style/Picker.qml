// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Quillo

// A button that shows the chosen value and opens a menu of all.
T.ComboBox {
    id: picker

    implicitWidth: Math.max(120, widest) + 40
    implicitHeight: 24
    leftPadding: 10
    rightPadding: 26
    focusPolicy: Qt.StrongFocus
    font.pixelSize: 13

    readonly property real widest: {
        let width = 0;
        for (const text of model)
            width = Math.max(width, metrics.advanceWidth(text));
        return Math.ceil(width);
    }

    FontMetrics {
        id: metrics

        font: picker.font
    }

    Accessible.description: displayText // its name is that of the row
    Accessible.onPressAction: popup.open()
    Keys.onReturnPressed: popup.open()
    Keys.onEnterPressed: popup.open()

    contentItem: Text {
        text: picker.displayText
        textFormat: Text.PlainText
        font: picker.font
        color: SystemColors.text
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
    }
    indicator: Image {
        x: picker.width - width - 7
        anchors.verticalCenter: parent.verticalCenter
        sourceSize { width: 12; height: 12 }
        source: "symbols/chevron.up.chevron.down.svg"
    }
    background: RoundedRectangle {
        radius: 6
        color: picker.down ? Qt.darker(SystemColors.control, 1.1) : SystemColors.control
        borderWidth: 1
        borderColor: SystemColors.controlBorder

        FocusRing { visible: picker.visualFocus }
    }

    delegate: T.ItemDelegate {
        id: choice

        required property int index
        required property string modelData

        width: ListView.view.width
        implicitHeight: 26
        leftPadding: 8
        text: modelData
        font.pixelSize: 13
        highlighted: picker.highlightedIndex === index

        contentItem: Text {
            text: (choice.index === picker.currentIndex ? "✓  " : "     ") + choice.text
            textFormat: Text.PlainText
            font: choice.font
            color: choice.highlighted ? SystemColors.accentText : SystemColors.text
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
        }
        background: RoundedRectangle {
            radius: 4
            color: choice.highlighted ? SystemColors.accent : "transparent"
        }
    }

    popup: T.Popup {
        y: picker.height + 2
        width: picker.width + 16
        implicitHeight: contentItem.implicitHeight + 8
        padding: 4
        margins: 6

        contentItem: ListView {
            implicitHeight: contentHeight
            model: picker.delegateModel
            currentIndex: picker.highlightedIndex
            interactive: false
        }
        background: RoundedRectangle {
            radius: 7
            color: SystemColors.box
            borderWidth: 1
            borderColor: SystemColors.controlBorder
        }
    }
}
