// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Quillo

// A slim scroll bar that stays in sight while there is something to scroll.
T.ScrollBar {
    id: bar

    property color ink: Paper.secondary

    implicitWidth: 10
    padding: 2
    minimumSize: 0.06
    visible: size < 1

    contentItem: RoundedRectangle {
        implicitWidth: 6
        radius: 3
        color: bar.pressed ? bar.ink : Qt.alpha(bar.ink, 0.45)
    }
}
