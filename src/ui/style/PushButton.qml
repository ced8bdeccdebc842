// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// A bordered button in the desktop's colours. Space presses it while it has the focus, and Return too.
KeyButton {
    id: button

    property bool isDefault: false
    property bool isDestructive: false
    // Drawn as switched on, without being a default button.
    property bool isTinted: false
    property color ground: SystemColors.control
    property color ink: SystemColors.text
    property color edge: SystemColors.controlBorder
    property color ring: SystemColors.accent

    readonly property bool isFilled: isDefault || isTinted

    implicitWidth: Math.max(implicitContentWidth + leftPadding + rightPadding, 44)
    implicitHeight: 24
    leftPadding: 12
    rightPadding: 12
    focusPolicy: Qt.StrongFocus
    opacity: enabled ? 1 : 0.45
    font.pixelSize: 13

    contentItem: Text {
        text: button.text
        textFormat: Text.PlainText
        font: button.font
        color: button.isFilled ? SystemColors.accentText
             : button.isDestructive ? SystemColors.red : button.ink
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }

    background: RoundedRectangle {
        radius: 6
        color: {
            const fill = button.isFilled ? SystemColors.accent : button.ground;
            return button.down ? Qt.darker(fill, 1.15) : fill;
        }
        borderWidth: 1
        borderColor: button.isFilled ? Qt.darker(SystemColors.accent, 1.1) : button.edge

        FocusRing { visible: button.visualFocus; ringColor: button.ring }
    }
}
