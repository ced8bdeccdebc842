// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// The number of transcripts, their deletion, and the program's version.
FormSection {
    id: section

    required property SettingsModel settings

    title: "History"

    FormRow {
        label: "Transcripts on this Mac"

        Value { text: section.settings.transcriptCount }
        PushButton {
            text: "Clear…"
            enabled: section.settings.transcriptCount > 0
            onClicked: confirmation.open()
        }
        Confirmation {
            id: confirmation

            title: "Delete all " + section.settings.transcriptCount + " transcripts?"
            message: "They're stored only on this Mac, so this can't be undone."
            action: "Delete All"
            onConfirmed: section.settings.clearHistory()
        }
    }

    footer: Note {
        width: parent.width
        topPadding: 4
        horizontalAlignment: Text.AlignHCenter
        text: "Version " + section.settings.version
    }
}
