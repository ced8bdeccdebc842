// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// A filled capsule with a small label.
KeyButton {
    id: button

    leftPadding: 10
    rightPadding: 10
    topPadding: 3
    bottomPadding: 3
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    focusPolicy: Qt.StrongFocus
    opacity: down ? 0.7 : 1
    font: Paper.sansMedium(11)

    contentItem: Text {
        text: button.text
        textFormat: Text.PlainText
        font: button.font
        color: Paper.background
    }

    background: RoundedRectangle {
        radius: height / 2
        color: Paper.primary

        FocusRing { visible: button.visualFocus; corner: button.height / 2; ringColor: Paper.accent }
    }
}
