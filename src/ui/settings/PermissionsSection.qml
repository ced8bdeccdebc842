// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// What the program may do.
FormSection {
    id: section

    required property PermissionProperties permissions

    title: qsTr("Permissions")

    PermissionRow {
        label: qsTr("Microphone")
        detail: qsTr("To hear what you say.")
        isGranted: section.permissions.isMicrophoneGranted
        onFix: section.permissions.fixMicrophone()
    }
    PermissionRow {
        label: qsTr("Accessibility")
        detail: qsTr("To paste into other apps. Without it, text is copied and you press ⌘V.")
        isGranted: section.permissions.isTrusted
        onFix: section.permissions.fixAccessibility()
    }
}
