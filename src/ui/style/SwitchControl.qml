// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Quillo

// An on-off switch.
T.Switch {
    id: control

    implicitWidth: 38
    implicitHeight: 22
    focusPolicy: Qt.StrongFocus
    Keys.onReturnPressed: event => {
        if (!event.isAutoRepeat)
            flip();
    }
    Accessible.onPressAction: flip()
    Accessible.onToggleAction: flip()

    function flip() {
        toggle();
        toggled();
    }

    indicator: RoundedRectangle {
        width: control.width
        height: control.height
        radius: height / 2
        color: control.checked ? SystemColors.accent : Qt.alpha(SystemColors.secondary, 0.4)

        Behavior on color { ColorAnimation { duration: 120 } }

        FocusRing { visible: control.visualFocus; corner: control.height / 2 }

        RoundedRectangle {
            x: control.checked ? parent.width - width - 2 : 2
            y: 2
            width: 18
            height: 18
            radius: 9
            color: "white"

            Behavior on x { NumberAnimation { duration: 120; easing.type: Easing.OutQuad } }
        }
    }
}
