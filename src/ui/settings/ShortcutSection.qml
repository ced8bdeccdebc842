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

    title: qsTr("Shortcut")
    note: qsTr("Press Esc while recording to cancel.")

    FormRow {
        label: qsTr("Trigger")

        SegmentedControl {
            segments: [qsTr("Key combination"), qsTr("Hold a single key")]
            selected: section.isSingleKey ? 1 : 0
            // The first single key, or the combination that the program comes with.
            onChosen: index => section.settings.singleKey = index === 1 ? 0 : -1
            Accessible.name: qsTr("Trigger")
        }
    }
    FormRow {
        visible: !section.isSingleKey
        label: qsTr("Shortcut")

        ShortcutRecorder {
            recorder: section.settings.shortcutRecorder
            shortcut: section.shortcuts.dictationLabel
            title: qsTr("Shortcut")
        }
    }
    FormRow {
        visible: section.isSingleKey
        label: qsTr("Key")

        Picker {
            model: section.settings.singleKeyLabels
            currentIndex: section.settings.singleKey
            onActivated: index => section.settings.singleKey = index
            Accessible.name: qsTr("Key")
        }
    }
    FormNote {
        visible: section.settings.isFnKey && !section.settings.isKeyUnseen
        text: qsTr("Set System Settings › Keyboard › “Press 🌐 key to” to “Do Nothing”, or the emoji picker opens too.")
    }
    FormNote {
        visible: section.settings.isKeyUnseen
        isWarning: true
        text: qsTr("This key doesn't arrive here: the keyboard or the desktop keeps it to itself. Choose another one.")
    }
    FormNote {
        visible: section.isSingleKey && !section.permissions.isTrusted
        isWarning: true
        text: qsTr("A single key needs Accessibility (below) before it works.")
    }
    FormRow {
        label: qsTr("Behavior")

        Picker {
            model: section.settings.triggerModeLabels
            currentIndex: section.settings.triggerMode
            onActivated: index => section.settings.triggerMode = index
            Accessible.name: qsTr("Behavior")
        }
    }
    FormNote {
        visible: text !== ""
        isWarning: true
        text: section.shortcuts.dictationError
    }
}
