// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// The shortcuts for groups and history, and the groups.
FormSection {
    id: section

    required property ShortcutProperties shortcuts
    required property SettingsModel settings

    title: qsTr("Groups & History")
    note: qsTr("New dictations go into the current group: %1.").arg(settings.activeGroupName)

    FormRow {
        label: qsTr("Next group")

        ShortcutRecorder {
            recorder: section.settings.groupShortcutRecorder
            shortcut: section.shortcuts.groupLabel
            title: qsTr("Next group")
        }
    }
    FormNote {
        visible: text !== ""
        isWarning: true
        text: section.shortcuts.groupError
    }
    FormRow {
        label: qsTr("Show or hide history")

        ShortcutRecorder {
            recorder: section.settings.historyShortcutRecorder
            shortcut: section.shortcuts.historyLabel
            title: qsTr("Show or hide history")
        }
    }
    FormNote {
        visible: text !== ""
        isWarning: true
        text: section.shortcuts.historyError
    }
    FormRow {
        label: qsTr("Groups")

        Value { text: section.settings.groupCount }
        PushButton {
            text: qsTr("Edit…")
            onClicked: section.settings.editGroups()
            Accessible.name: qsTr("Edit groups")
        }
    }
}
