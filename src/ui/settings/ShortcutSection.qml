// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// The dictation shortcut and how it is used.
FormSection {
    id: section

    required property ShortcutProperties shortcuts
    required property PermissionProperties permissions
    required property SettingsModel settings
    readonly property bool isSingleKey: settings.singleKey >= 0

    title: "Shortcut"
    note: "Press Esc while recording to cancel."

    FormRow {
        label: "Trigger"

        SegmentedControl {
            segments: ["Key combination", "Hold a single key"]
            selected: section.isSingleKey ? 1 : 0
            // The first single key, or the combination that the program comes with.
            onChosen: index => section.settings.singleKey = index === 1 ? 0 : -1
            Accessible.name: "Trigger"
        }
    }
    FormRow {
        visible: !section.isSingleKey
        label: "Shortcut"

        ShortcutRecorder {
            recorder: section.settings.shortcutRecorder
            shortcut: section.shortcuts.dictationLabel
            title: "Shortcut"
        }
    }
    FormRow {
        visible: section.isSingleKey
        label: "Key"

        Picker {
            model: section.settings.singleKeyLabels
            currentIndex: section.settings.singleKey
            onActivated: index => section.settings.singleKey = index
            Accessible.name: "Key"
        }
    }
    FormNote {
        visible: section.settings.isFnKey && !section.settings.isKeyUnseen
        text: "Set System Settings › Keyboard › “Press 🌐 key to” to “Do Nothing”, or the emoji picker opens too."
    }
    FormNote {
        visible: section.settings.isKeyUnseen
        isWarning: true
        text: "This key doesn't arrive here: the keyboard or the desktop keeps it to itself. Choose another one."
    }
    FormNote {
        visible: section.isSingleKey && !section.permissions.isTrusted
        isWarning: true
        text: "A single key needs Accessibility (below) before it works."
    }
    FormRow {
        label: "Behavior"

        Picker {
            model: section.settings.triggerModeLabels
            currentIndex: section.settings.triggerMode
            onActivated: index => section.settings.triggerMode = index
            Accessible.name: "Behavior"
        }
    }
    FormNote {
        visible: text !== ""
        isWarning: true
        text: section.shortcuts.dictationError
    }
}
