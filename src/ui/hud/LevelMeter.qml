// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// A row of bars that rise with the microphone's level.
Row {
    id: meter

    property real level: 0
    // How far each bar rises.
    property list<real> weights

    spacing: 2
    height: 18

    Repeater {
        model: meter.weights

        RoundedRectangle {
            required property real modelData

            anchors.verticalCenter: parent.verticalCenter
            width: 3
            height: meter.level * 14 * modelData + 4
            radius: width / 2
            color: Qt.rgba(1, 1, 1, 0.9)

            Behavior on height {
                NumberAnimation { duration: 80 }
            }
        }
    }
}
