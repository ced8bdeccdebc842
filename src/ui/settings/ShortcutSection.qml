// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// The dictation shortcut and how it is used.
FormSection {
    id: section

    required property var model
    required property SettingsModel settings
    readonly property bool isSingleKey: model.singleKey >= 0

    title: "Shortcut"
    note: "Press Esc while recording to cancel."

    FormRow {
        label: "Trigger"

        SegmentedControl {
            segments: ["Key combination", "Hold a single key"]
            selected: section.isSingleKey ? 1 : 0
            // The first single key, or the combination that the program comes with.
            onChosen: index => section.model.singleKey = index === 1 ? 0 : -1
            Accessible.name: "Trigger"
        }
    }
    FormRow {
        visible: !section.isSingleKey
        label: "Shortcut"

        ShortcutRecorder {
            recorder: section.settings.shortcutRecorder
            shortcut: section.model.shortcutLabel
            title: "Shortcut"
        }
    }
    FormRow {
        visible: section.isSingleKey
        label: "Key"

        Picker {
            model: section.model.singleKeyLabels
            currentIndex: section.model.singleKey
            onActivated: index => section.model.singleKey = index
            Accessible.name: "Key"
        }
    }
    FormNote {
        visible: section.model.isFnKey
        text: "Set System Settings › Keyboard › “Press 🌐 key to” to “Do Nothing”, or the emoji picker opens too."
    }
    FormNote {
        visible: section.isSingleKey && !section.model.isTrusted
        isWarning: true
        text: "A single key needs Accessibility (below) before it works."
    }
    FormRow {
        label: "Behavior"

        Picker {
            model: section.model.triggerModeLabels
            currentIndex: section.model.triggerMode
            onActivated: index => section.model.triggerMode = index
            Accessible.name: "Behavior"
        }
    }
    FormNote {
        visible: text !== ""
        isWarning: true
        text: section.model.shortcutError
    }
}
