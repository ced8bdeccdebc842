// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// What the program may do.
FormSection {
    id: section

    required property var model

    title: "Permissions"

    PermissionRow {
        label: "Microphone"
        detail: "To hear what you say."
        isGranted: section.model.isMicrophoneGranted
        onFix: section.model.fixMicrophone()
    }
    PermissionRow {
        label: "Accessibility"
        detail: "To paste into other apps. Without it, text is copied and you press ⌘V."
        isGranted: section.model.isTrusted
        onFix: section.model.fixAccessibility()
    }
}
