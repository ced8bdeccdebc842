// SPDX-License-Identifier: MIT
import QtQuick

// A small progress spinner. It turns in steps, eight to a round, so that it costs eight frames a second and no more.
Item {
    id: spinner

    property bool running: false
    property color color: "white"
    property int step: 0

    implicitWidth: 16
    implicitHeight: 16

    Timer {
        interval: 125
        repeat: true
        running: spinner.running
        onTriggered: spinner.step = (spinner.step + 1) % 8
    }

    Repeater {
        model: 8

        Rectangle {
            id: spoke

            required property int index

            x: 7
            y: 1
            width: 2
            height: 4
            radius: 1
            color: spinner.color
            opacity: 1 - ((spinner.step - index + 8) % 8) * 0.11
            transform: Rotation { origin.x: 1; origin.y: 7; angle: spoke.index * 45 }
        }
    }
}
