// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// A group of rows under a heading, with a note below.
Column {
    id: section

    property string title: ""
    property string note: ""
    property Component footer: null
    default property alias rows: rows.data

    width: parent !== null ? parent.width : 0
    spacing: 6

    Text {
        x: 10
        text: section.title
        font { pixelSize: 13; weight: Font.DemiBold }
        color: SystemColors.text
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    RoundedRectangle {
        width: parent.width
        height: rows.height
        radius: 8
        color: SystemColors.box
        borderWidth: 1
        borderColor: SystemColors.separator

        Column {
            id: rows

            width: parent.width
        }
    }

    Note {
        visible: section.note !== ""
        x: 10
        width: parent.width - 20
        text: section.note
    }
    Loader {
        width: parent.width
        active: section.footer !== null
        sourceComponent: section.footer
    }
}
