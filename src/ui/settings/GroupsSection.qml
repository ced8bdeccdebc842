// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// The shortcuts for groups and history, and the groups.
FormSection {
    id: section

    required property var model
    required property SettingsModel settings

    title: "Groups & History"
    note: "New dictations go into the current group: " + settings.activeGroupName + "."

    FormRow {
        label: "Next group"

        ShortcutRecorder {
            recorder: section.settings.groupShortcutRecorder
            shortcut: section.model.groupShortcutLabel
            title: "Next group"
        }
    }
    FormNote {
        visible: text !== ""
        isWarning: true
        text: section.model.groupShortcutError
    }
    FormRow {
        label: "Show or hide history"

        ShortcutRecorder {
            recorder: section.settings.historyShortcutRecorder
            shortcut: section.model.historyShortcutLabel
            title: "Show or hide history"
        }
    }
    FormNote {
        visible: text !== ""
        isWarning: true
        text: section.model.historyShortcutError
    }
    FormRow {
        label: "Groups"

        Value { text: section.settings.groupCount }
        PushButton {
            text: "Edit…"
            onClicked: section.model.editGroups()
            Accessible.name: "Edit groups"
        }
    }
}
