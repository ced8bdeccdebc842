// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T

// What all buttons have in common: Return presses them as Space does, and so does a screen reader. A key held down presses once.
T.Button {
    id: button

    Accessible.onPressAction: {
        if (enabled)
            clicked();
    }
    Keys.onPressed: event => {
        const isReturn = event.key === Qt.Key_Return || event.key === Qt.Key_Enter;
        event.accepted = isReturn || (event.isAutoRepeat && event.key === Qt.Key_Space);
        if (isReturn && !event.isAutoRepeat)
            clicked();
    }
    Keys.onReleased: event => {
        event.accepted = event.isAutoRepeat && event.key === Qt.Key_Space;
    }
}
