// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// A button that shows a shortcut and, clicked, listens for the next key combination.
Column {
    id: view

    required property ShortcutRecorderModel recorder
    property string shortcut: ""
    // What the shortcut is for.
    property string title: ""
    readonly property bool isShown: visible && Window.window !== null && Window.window.visible

    onIsShownChanged: {
        if (!isShown)
            recorder.stop();
    }

    spacing: 4

    PushButton {
        anchors.right: parent.right
        implicitWidth: Math.max(120, implicitContentWidth) + leftPadding + rightPadding
        isTinted: view.recorder.isRecording
        text: view.recorder.isRecording ? qsTr("Type shortcut…") : view.shortcut
        onClicked: view.recorder.toggle()
        Accessible.name: view.title + ", " + text
    }
    Note {
        visible: text !== ""
        anchors.right: parent.right
        width: Math.min(implicitWidth, 240)
        horizontalAlignment: Text.AlignRight
        text: view.recorder.rejection
        color: SystemColors.orange
        Accessible.role: Accessible.AlertMessage
    }
}
