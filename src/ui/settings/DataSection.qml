// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// The agreement to send recordings, and the balance.
FormSection {
    id: section

    required property var model

    title: "Data & AI"

    FormRow {
        label: "Sending to OpenAI"

        Value {
            text: section.model.hasConsent ? "Allowed" : "Off"
            color: section.model.hasConsent ? SystemColors.secondary : SystemColors.orange
        }
        PushButton {
            text: "Review…"
            onClicked: section.model.reviewConsent()
        }
    }
    FormRow {
        label: "Tokens"

        Value {
            text: section.model.isUnmetered ? "Unmetered" : section.model.balance ?? "—"
        }
        PushButton {
            text: "Refresh"
            enabled: section.model.hasConsent
            onClicked: section.model.refreshBalance()
        }
    }
}
