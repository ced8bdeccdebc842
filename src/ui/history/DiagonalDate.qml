// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// Day and month with a slash between them.
Item {
    id: badge

    required property int day
    required property int month

    width: 44
    height: 56

    Text {
        anchors { left: parent.left; top: parent.top; topMargin: -metrics.rise }
        text: badge.day
        font: Paper.italicFigures(22)
        color: Paper.primary
    }
    Text {
        anchors { right: parent.right; bottom: parent.bottom; bottomMargin: -metrics.drop }
        text: badge.month
        font: Paper.italicFigures(22)
        color: Paper.primary
    }
    Image {
        sourceSize { width: 44; height: 56 }
        source: "../style/symbols/slash.svg"
    }

    // Faces leave room above and below their figures; the figures themselves stand in the corners.
    FontMetrics {
        id: metrics

        readonly property real rise: Math.max(0, ascent - tightBoundingRect("0").height - 4)
        readonly property real drop: Math.max(0, descent - 4)

        font: Paper.italicFigures(22)
    }
}
