// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// One group of the carousel; its name at full size while it is selected.
Item {
    id: chip

    required property int index
    required property string name
    property bool isSelected: false
    property bool hasFocusRing: false

    signal chosen

    width: Math.ceil(label.implicitWidth)
    height: 40

    Accessible.role: Accessible.PageTab
    Accessible.name: name
    Accessible.selectable: true
    Accessible.selected: isSelected
    Accessible.onPressAction: chosen()

    Text {
        id: label

        anchors.horizontalCenter: parent.horizontalCenter
        anchors.verticalCenter: parent.verticalCenter
        anchors.verticalCenterOffset: chip.isSelected ? -1 : 2
        text: chip.name
        textFormat: Text.PlainText
        font: Paper.sans(19, -0.4)
        color: chip.isSelected ? Paper.primary : Paper.faded
        scale: chip.isSelected ? 1 : 0.78

        Behavior on anchors.verticalCenterOffset { NumberAnimation { duration: 350; easing.type: Easing.InOutQuad } }
        Behavior on color { ColorAnimation { duration: 350; easing.type: Easing.InOutQuad } }
        Behavior on scale { NumberAnimation { duration: 350; easing.type: Easing.InOutQuad } }

        FocusRing {
            visible: chip.hasFocusRing && chip.isSelected
            anchors.leftMargin: -6
            anchors.rightMargin: -6
            ringColor: Paper.accent
        }
    }

    TapHandler { onTapped: chip.chosen() }
}
