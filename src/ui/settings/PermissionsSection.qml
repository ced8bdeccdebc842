// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// What the program may do.
FormSection {
    id: section

    required property PermissionProperties permissions

    title: "Permissions"

    PermissionRow {
        label: "Microphone"
        detail: "To hear what you say."
        isGranted: section.permissions.isMicrophoneGranted
        onFix: section.permissions.fixMicrophone()
    }
    PermissionRow {
        label: "Accessibility"
        detail: "To paste into other apps. Without it, text is copied and you press ⌘V."
        isGranted: section.permissions.isTrusted
        onFix: section.permissions.fixAccessibility()
    }
}
