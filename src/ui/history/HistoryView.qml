// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// The history window's content.
Item {
    id: view

    required property DictationProperties dictation
    required property ShortcutProperties shortcuts
    required property BalanceProperties balance
    required property UnsentProperties unsent
    required property HistoryModel history
    required property GroupCarouselModel carousel
    required property GroupEditorModel editor
    required property HistoryWindow historyWindow

    implicitWidth: 460
    implicitHeight: 680

    Binding {
        view.history.isLive: view.historyWindow.isVisible
    }
    Shortcut {
        sequences: [StandardKey.Find]
        enabled: !view.historyWindow.isEditingGroups && !view.history.isEmpty
        onActivated: entries.startSearch()
    }
    Shortcut {
        sequences: ["Ctrl+W", "Escape"]
        onActivated: view.Window.window.close()
    }
    Shortcut {
        sequences: [StandardKey.Quit]
        onActivated: Qt.quit()
    }
    Connections {
        target: view.historyWindow
        function onIsVisibleChanged() {
            if (view.historyWindow.isVisible && !view.historyWindow.isEditingGroups && !view.history.isEmpty)
                entries.startSearch();
        }
    }
    Connections {
        target: view.carousel
        function onActivated() {
            entries.showNewest();
        }
    }

    Column {
        id: top

        width: parent.width

        Item {
            width: parent.width
            height: 30 + title.implicitHeight + 1 + 6

            Text {
                id: title

                x: 24
                y: 30
                text: qsTr("History")
                font: Paper.black(44)
                color: Paper.primary
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            MetaLabel {
                anchors { right: parent.right; rightMargin: 24; baseline: title.baseline }
                label: view.history.countText
                color: Paper.accent
            }
            Rectangle {
                anchors { top: title.bottom; left: parent.left; right: parent.right; leftMargin: 24; rightMargin: 24 }
                height: 1
                color: Paper.primary
            }
        }
        StatusStrip {
            x: 24
            width: parent.width - 48
            dictation: view.dictation
            shortcuts: view.shortcuts
            balance: view.balance
        }
        UnsentStrip {
            x: 24
            width: parent.width - 48
            unsent: view.unsent
        }
        GroupCarousel {
            width: parent.width
            groups: view.carousel
            onEdit: view.historyWindow.isEditingGroups = true
        }
    }

    Column {
        visible: view.history.isEmpty
        anchors.centerIn: entries
        width: parent.width - 48
        spacing: 12

        EmptyTitle { text: qsTr("No entries yet.") }
        EmptyHint {
            text: view.carousel.activeHint !== "" ? view.carousel.activeHint
                                                  : qsTr("Dictate with %1 to see it here.").arg(view.shortcuts.dictationLabel)
        }
    }

    EntryList {
        id: entries

        visible: !view.history.isEmpty
        anchors { left: parent.left; right: parent.right; top: top.bottom; bottom: parent.bottom }
        history: view.history
    }

    GroupEditor {
        groups: view.editor
        historyWindow: view.historyWindow
    }
}
