// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Window
import Quillo

// The HUD's capsule, centred in its window.
Item {
    id: view

    required property HUDModel model
    readonly property rect outline: Qt.rect(capsule.x, capsule.y, capsule.width, capsule.height)

    readonly property bool isShown: Window.window !== null && Window.window.visible
    readonly property bool isRecording: model.kind === HUDModel.Recording
    readonly property bool isTranscribing: model.kind === HUDModel.Transcribing
    readonly property bool isGroup: model.kind === HUDModel.Group
    readonly property bool isOutOfTokens: model.kind === HUDModel.OutOfTokens
    // Helvetica's metrics: the panel's width was drawn for them, and wider faces lose the ends of messages.
    readonly property string family: "Liberation Sans"
    readonly property bool isProblem: isOutOfTokens || model.isError

    Accessible.role: Accessible.Notification
    Accessible.name: isGroup ? groupText[0] + model.text + (groupText[1] ?? "") : phaseText()

    // What stands before and behind the group's name.
    readonly property list<string> groupText: qsTr("Dictating into %1").split("%1")

    function phaseText() {
        switch (model.kind) {
        case HUDModel.Recording:
            return model.handsFree ? qsTr("Listening — press again to stop") : qsTr("Listening");
        case HUDModel.Transcribing:
            return qsTr("Transcribing…");
        case HUDModel.OutOfTokens:
            return model.freeGrantMissed ? qsTr("No free tokens were left today") : qsTr("You're out of tokens");
        case HUDModel.Group:
            return groupText[0];
        default:
            return model.text;
        }
    }

    RoundedRectangle {
        id: capsule

        anchors.centerIn: parent
        width: row.width + 28
        height: Math.max(row.height + 18, 34)
        radius: height / 2
        color: Qt.rgba(0, 0, 0, 0.82)

        Row {
            id: row

            anchors.centerIn: parent
            spacing: 10

            RoundedRectangle {
                visible: view.isRecording
                anchors.verticalCenter: parent.verticalCenter
                width: 9
                height: 9
                radius: height / 2
                color: "#ff3b30"
            }

            LevelMeter {
                visible: view.isRecording
                anchors.verticalCenter: parent.verticalCenter
                level: view.model.level
                weights: [0.5, 0.8, 1.0, 0.7, 0.45]
            }

            Spinner {
                visible: view.isTranscribing
                anchors.verticalCenter: parent.verticalCenter
                running: view.isShown && view.isTranscribing
            }

            Image {
                id: symbol

                visible: !view.isRecording && !view.isTranscribing
                anchors.verticalCenter: parent.verticalCenter
                sourceSize { width: 15; height: 15 }
                source: view.isProblem ? "../style/symbols/exclamationmark.circle.fill.svg"
                      : view.isGroup ? "../style/symbols/folder.fill.svg" : "../style/symbols/checkmark.circle.fill.svg"
            }

            Row {
                anchors.verticalCenter: parent.verticalCenter

                Text {
                    id: label

                    // What is left of the window beside the symbol, the button and the capsule's padding.
                    width: Math.min(implicitWidth, view.isOutOfTokens ? 217 - buyButton.width : view.isRecording ? 200 : 227)
                    text: view.phaseText()
                    textFormat: Text.PlainText
                    wrapMode: Text.Wrap
                    maximumLineCount: 2
                    elide: Text.ElideRight
                    color: "white"
                    font { family: view.family; pixelSize: 12; weight: Font.Medium }
                }

                Text {
                    visible: view.isGroup
                    width: Math.min(implicitWidth, 227 - label.width - tail.width)
                    text: view.isGroup ? view.model.text : ""
                    textFormat: Text.PlainText
                    elide: Text.ElideRight
                    color: "white"
                    font { family: view.family; pixelSize: 12; weight: Font.Bold }
                }

                Text {
                    id: tail

                    visible: view.isGroup
                    width: visible ? implicitWidth : 0
                    text: view.groupText[1] ?? ""
                    textFormat: Text.PlainText
                    color: "white"
                    font { family: view.family; pixelSize: 12; weight: Font.Medium }
                }
            }

            RoundedRectangle {
                id: buyButton

                visible: view.isOutOfTokens
                anchors.verticalCenter: parent.verticalCenter
                width: buyLabel.implicitWidth + 16
                height: 20
                radius: 5
                color: buyTap.pressed ? "#0060df" : "#0a84ff"

                Accessible.role: Accessible.Button
                Accessible.name: buyLabel.text
                Accessible.onPressAction: view.model.buyTokens()

                Text {
                    id: buyLabel

                    anchors.centerIn: parent
                    text: qsTr("Buy…")
                    color: "white"
                    font { family: view.family; pixelSize: 12; weight: Font.Medium }
                }

                TapHandler {
                    id: buyTap

                    onTapped: view.model.buyTokens()
                }
            }

            NumberAnimation {
                id: fadeIn

                target: row
                property: "opacity"
                from: 0.3
                to: 1
                duration: 150
                easing.type: Easing.OutQuad
            }
        }

        Behavior on width {
            enabled: view.isShown
            NumberAnimation { duration: 150; easing.type: Easing.OutQuad }
        }
    }

    Connections {
        target: view.model
        function onPhaseChanged() {
            if (view.isShown)
                fadeIn.restart();
        }
    }
}
