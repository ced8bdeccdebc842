// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Quillo

// A few choices side by side; the arrow keys go from one to the next.
RoundedRectangle {
    id: control

    property list<string> segments
    property int selected: 0

    signal chosen(int index)

    implicitWidth: row.width + 4
    implicitHeight: 24
    radius: 6
    color: Qt.alpha(SystemColors.secondary, 0.18)
    Accessible.role: Accessible.Grouping

    Row {
        id: row

        x: 2
        y: 2

        Repeater {
            model: control.segments

            delegate: T.RadioButton {
                id: segment

                required property int index
                required property string modelData

                implicitWidth: label.implicitWidth + 20
                implicitHeight: 20
                focusPolicy: checked ? Qt.StrongFocus : Qt.ClickFocus
                text: modelData
                checked: index === control.selected
                autoExclusive: false
                font { pixelSize: 12; weight: checked ? Font.Medium : Font.Normal }
                onClicked: choose(index)
                Accessible.onPressAction: choose(index)
                Accessible.onToggleAction: choose(index)
                Keys.onLeftPressed: choose(index - 1)
                Keys.onRightPressed: choose(index + 1)

                function choose(place) {
                    if (place >= 0 && place < control.segments.length && place !== control.selected) {
                        control.chosen(place);
                        (parent.children[place] as T.RadioButton).forceActiveFocus(Qt.TabFocusReason);
                    }
                    checked = Qt.binding(() => index === control.selected);
                }

                contentItem: Text {
                    id: label

                    text: segment.text
                    font: segment.font
                    color: SystemColors.text
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                }
                background: RoundedRectangle {
                    radius: 5
                    color: segment.checked ? SystemColors.control : "transparent"
                    borderWidth: segment.checked ? 1 : 0
                    borderColor: SystemColors.controlBorder

                    FocusRing { visible: segment.visualFocus; corner: 5 }
                }
            }
        }
    }
}
