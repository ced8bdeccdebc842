// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// The group that new dictations go into, chosen from a strip that scrolls sideways.
Column {
    id: carousel

    required property GroupCarouselModel groups

    signal edit

    spacing: 2

    Item {
        x: 24
        width: parent.width - 48
        height: 14 + editButton.height

        MetaLabel {
            id: label

            anchors.verticalCenter: editButton.verticalCenter
            label: qsTr("Current group")
        }
        PillButtonStyle {
            id: editButton

            anchors { left: label.right; leftMargin: 8; bottom: parent.bottom }
            text: qsTr("Edit")
            onClicked: carousel.edit()
            Accessible.name: qsTr("Edit groups")
        }
    }

    Item {
        width: parent.width
        height: 41

        Flickable {
            id: strip

            width: parent.width
            height: 40
            clip: true
            contentWidth: chips.width + width
            contentHeight: height
            flickableDirection: Flickable.HorizontalFlick
            boundsBehavior: Flickable.StopAtBounds
            activeFocusOnTab: true

            Accessible.role: Accessible.PageTabList
            Accessible.name: qsTr("Current group")

            Keys.onLeftPressed: carousel.groups.activate(carousel.groups.activeRow - 1)
            Keys.onRightPressed: carousel.groups.activate(carousel.groups.activeRow + 1)

            function centre(isAnimated) {
                const chip = repeater.itemAt(carousel.groups.activeRow) as Chip;
                if (chip === null)
                    return;
                scroll.stop();
                // The strip is padded by half its width on both sides.
                const target = chip.x + chip.width / 2;
                if (isAnimated) {
                    scroll.to = target;
                    scroll.start();
                } else {
                    contentX = target;
                }
            }

            onWidthChanged: centre(false)
            Component.onCompleted: centre(false)

            NumberAnimation {
                id: scroll

                target: strip
                property: "contentX"
                duration: 350
                easing.type: Easing.InOutQuad
            }
            WheelHandler {
                orientation: Qt.Vertical
                acceptedDevices: PointerDevice.Mouse
                onWheel: event => {
                    const furthest = strip.contentWidth - strip.width;
                    strip.contentX = Math.max(0, Math.min(furthest, strip.contentX - event.angleDelta.y / 2));
                }
            }
            Connections {
                target: carousel.groups
                function onActivated() {
                    strip.centre(true);
                }
            }

            Row {
                id: chips

                x: strip.width / 2
                spacing: 4
                onPositioningComplete: strip.centre(scroll.running)

                Repeater {
                    id: repeater

                    model: carousel.groups

                    delegate: Chip {
                        isSelected: index === carousel.groups.activeRow
                        hasFocusRing: strip.activeFocus
                        onChosen: carousel.groups.activate(index)
                    }
                }
            }
        }

        // The strip fades out at both ends.
        Rectangle {
            width: parent.width * 0.14
            height: 40
            gradient: Gradient {
                orientation: Gradient.Horizontal
                GradientStop { position: 0; color: Paper.background }
                GradientStop { position: 1; color: Qt.alpha(Paper.background, 0) }
            }
        }
        Rectangle {
            anchors.right: parent.right
            width: parent.width * 0.14
            height: 40
            gradient: Gradient {
                orientation: Gradient.Horizontal
                GradientStop { position: 0; color: Qt.alpha(Paper.background, 0) }
                GradientStop { position: 1; color: Paper.background }
            }
        }
        Rectangle {
            x: 24
            y: 40
            width: parent.width - 48
            height: 1
            color: Paper.divider
        }
    }
}
