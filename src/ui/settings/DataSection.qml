// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// The agreement to send recordings, and the balance.
FormSection {
    id: section

    required property PermissionProperties permissions
    required property BalanceProperties balance

    title: "Data & AI"

    FormRow {
        label: "Sending to OpenAI"

        Value {
            text: section.permissions.hasConsent ? "Allowed" : "Off"
            color: section.permissions.hasConsent ? SystemColors.secondary : SystemColors.orange
        }
        PushButton {
            text: "Review…"
            onClicked: section.permissions.reviewConsent()
        }
    }
    FormRow {
        label: "Tokens"

        Value {
            text: section.balance.isUnmetered ? "Unmetered" : section.balance.isKnown ? section.balance.tokens : "—"
        }
        PushButton {
            text: "Refresh"
            enabled: section.permissions.hasConsent
            onClicked: section.balance.refresh()
        }
    }
}
