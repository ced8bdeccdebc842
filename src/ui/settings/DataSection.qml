// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// The agreement to send recordings, and the balance.
FormSection {
    id: section

    required property PermissionProperties permissions
    required property BalanceProperties balance

    title: qsTr("Data & AI")

    FormRow {
        label: qsTr("Sending to OpenAI")

        Value {
            text: section.permissions.hasConsent ? qsTr("Allowed") : qsTr("Off")
            color: section.permissions.hasConsent ? SystemColors.secondary : SystemColors.orange
        }
        PushButton {
            text: qsTr("Review…")
            onClicked: section.permissions.reviewConsent()
        }
    }
    FormRow {
        label: qsTr("Tokens")

        Value {
            text: section.balance.isUnmetered ? qsTr("Unmetered") : section.balance.isKnown ? qsTr("%1", "number of tokens").arg(section.balance.tokens) : "—" // qmllint disable type
        }
        PushButton {
            text: qsTr("Refresh")
            enabled: section.permissions.hasConsent
            onClicked: section.balance.refresh()
        }
    }
}
