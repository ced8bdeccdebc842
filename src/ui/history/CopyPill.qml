// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// The button that copies an entry, and says so for a while.
KeyButton {
    id: pill

    property bool isCopied: false
    property color ink: isCopied ? Paper.accent : Paper.primary

    text: isCopied ? qsTr("COPIED") : qsTr("COPY")
    leftPadding: 12
    rightPadding: 12
    topPadding: 6
    bottomPadding: 6
    implicitWidth: Math.max(54, implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    font: Paper.sansMedium(10, 1.5)
    opacity: down ? 0.7 : 1
    Accessible.name: isCopied ? qsTr("Copied") : qsTr("Copy")

    Behavior on ink { ColorAnimation { duration: 300; easing.type: Easing.InOutQuad } }

    contentItem: Text {
        text: pill.text
        font: pill.font
        color: pill.ink
        horizontalAlignment: Text.AlignHCenter
    }

    background: RoundedRectangle {
        radius: 4
        color: "transparent"
        borderWidth: 1
        borderColor: pill.ink

        FocusRing { visible: pill.visualFocus; corner: 4; ringColor: Paper.accent }
    }
}
