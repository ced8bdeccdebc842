// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// The number of transcripts, their deletion, and the program's version.
FormSection {
    id: section

    required property SettingsModel settings

    // The question whether to delete everything is on screen.
    property bool confirmClear: false

    onConfirmClearChanged: confirmClear ? confirmation.open() : confirmation.close()

    title: qsTr("History")

    FormRow {
        label: qsTr("Transcripts on this Mac")

        Value { text: section.settings.transcriptCount }
        PushButton {
            text: qsTr("Clear…")
            enabled: section.settings.transcriptCount > 0
            onClicked: section.confirmClear = true
        }
        Confirmation {
            id: confirmation

            title: qsTr("Delete all %n transcripts?", "", section.settings.transcriptCount)
            message: qsTr("They're stored only on this Mac, so this can't be undone.")
            action: qsTr("Delete All")
            onClosed: section.confirmClear = false
            onConfirmed: section.settings.clearHistory()
        }
    }

    footer: Note {
        width: parent.width
        topPadding: 4
        horizontalAlignment: Text.AlignHCenter
        text: qsTr("Version %1").arg(section.settings.version)
    }
}
