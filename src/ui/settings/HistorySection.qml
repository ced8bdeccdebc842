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

    title: "History"

    FormRow {
        label: "Transcripts on this Mac"

        Value { text: section.settings.transcriptCount }
        PushButton {
            text: "Clear…"
            enabled: section.settings.transcriptCount > 0
            onClicked: section.confirmClear = true
        }
        Confirmation {
            id: confirmation

            title: "Delete all " + section.settings.transcriptCount + " transcripts?"
            message: "They're stored only on this Mac, so this can't be undone."
            action: "Delete All"
            onClosed: section.confirmClear = false
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
