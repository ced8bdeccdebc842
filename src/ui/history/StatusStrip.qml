// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// What the program is doing, the balance, and the shortcuts worth knowing here.
Column {
    id: strip

    required property DictationProperties dictation
    required property ShortcutProperties shortcuts
    required property BalanceProperties balance

    spacing: 6

    Item {
        width: parent.width
        height: Math.max(status.implicitHeight, 16)

        Item {
            id: indicator

            anchors.verticalCenter: parent.verticalCenter
            width: strip.dictation.activity === DictationProperties.Recording ? 9 : 16
            height: 16

            RoundedRectangle {
                visible: strip.dictation.activity === DictationProperties.Recording
                anchors.centerIn: parent
                width: 9
                height: 9
                radius: height / 2
                color: Paper.accent
            }
            Image {
                visible: strip.dictation.activity === DictationProperties.Idle
                anchors.centerIn: parent
                sourceSize { width: 16; height: 16 }
                source: "../style/symbols/waveform.svg"
            }
            Spinner {
                visible: strip.dictation.activity === DictationProperties.Transcribing
                anchors.centerIn: parent
                color: Paper.secondary
                running: visible && strip.Window.window !== null && strip.Window.window.visible
            }
        }
        Text {
            id: status

            anchors { left: indicator.right; leftMargin: 8; right: tokens.left; rightMargin: 8; verticalCenter: parent.verticalCenter }
            text: strip.dictation.statusText
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            font: Paper.sans(13)
            color: Paper.primary
            Accessible.role: Accessible.StatusBar
            Accessible.name: text
        }
        MetaLabel {
            id: tokens

            visible: strip.balance.isKnown
            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            width: visible ? implicitWidth : 0
            label: visible ? qsTr("%1 tokens", "", Math.min(strip.balance.tokens, 1000)).arg(strip.balance.tokens) : "" // qmllint disable type
        }
    }

    MetaLabel {
        width: parent.width
        wrapMode: Text.Wrap
        label: qsTr("%1  next group   ·   %2  hide").arg(strip.shortcuts.groupLabel).arg(strip.shortcuts.historyLabel)
    }
}
