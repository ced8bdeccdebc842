// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// The shortcuts for groups and history, and the groups.
FormSection {
    id: section

    required property ShortcutProperties shortcuts
    required property SettingsModel settings

    title: "Groups & History"
    note: "New dictations go into the current group: " + settings.activeGroupName + "."

    FormRow {
        label: "Next group"

        ShortcutRecorder {
            recorder: section.settings.groupShortcutRecorder
            shortcut: section.shortcuts.groupLabel
            title: "Next group"
        }
    }
    FormNote {
        visible: text !== ""
        isWarning: true
        text: section.shortcuts.groupError
    }
    FormRow {
        label: "Show or hide history"

        ShortcutRecorder {
            recorder: section.settings.historyShortcutRecorder
            shortcut: section.shortcuts.historyLabel
            title: "Show or hide history"
        }
    }
    FormNote {
        visible: text !== ""
        isWarning: true
        text: section.shortcuts.historyError
    }
    FormRow {
        label: "Groups"

        Value { text: section.settings.groupCount }
        PushButton {
            text: "Edit…"
            onClicked: section.settings.editGroups()
            Accessible.name: "Edit groups"
        }
    }
}
