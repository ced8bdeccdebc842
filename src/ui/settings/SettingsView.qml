// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Quillo

// The settings window's content: a form of six sections. Every control takes effect at once.
Rectangle {
    id: view

    required property ShortcutProperties shortcuts
    required property PermissionProperties permissions
    required property GeneralProperties general
    required property BalanceProperties balance
    required property SettingsModel settings

    implicitWidth: 500
    implicitHeight: form.implicitHeight + 40
    color: SystemColors.window

    Shortcut {
        sequences: ["Ctrl+W", "Escape"]
        onActivated: view.Window.window.close()
    }

    Shortcut {
        sequences: [StandardKey.Quit]
        onActivated: Qt.quit()
    }

    Flickable {
        id: scroller

        anchors.fill: parent
        contentHeight: view.implicitHeight
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        T.ScrollBar.vertical: PaperScrollBar { ink: SystemColors.secondary }

        Column {
            id: form

            x: 20
            y: 20
            width: scroller.width - 40
            spacing: 18

            ShortcutSection {
                shortcuts: view.shortcuts
                permissions: view.permissions
                settings: view.settings
            }
            GroupsSection { shortcuts: view.shortcuts; settings: view.settings }
            PermissionsSection { permissions: view.permissions }
            FormSection {
                title: qsTr("General")

                FormRow {
                    label: qsTr("Open at login")

                    SwitchControl {
                        checked: view.general.launchesAtLogin
                        onToggled: {
                            view.general.launchesAtLogin = checked;
                            checked = Qt.binding(() => view.general.launchesAtLogin);
                        }
                        Accessible.name: qsTr("Open at login")
                    }
                }
                FormRow {
                    label: qsTr("Keep recordings that couldn't be sent")
                    detail: qsTr("For seven days. They are sent when the server answers again.")

                    SwitchControl {
                        checked: view.general.keepsUnsent
                        onToggled: view.general.keepsUnsent = checked
                        Accessible.name: qsTr("Keep recordings that couldn't be sent")
                    }
                }
            }
            DataSection { permissions: view.permissions; balance: view.balance }
            HistorySection { settings: view.settings }
        }
    }

    // What has the focus stays in sight on a low screen.
    Window.onActiveFocusItemChanged: {
        const item = Window.activeFocusItem;
        let ancestor = item;
        while (ancestor !== null && ancestor !== form)
            ancestor = ancestor.parent;
        if (ancestor === null || !scroller.interactive)
            return;
        const y = item.mapToItem(scroller.contentItem, 0, 0).y;
        if (y < scroller.contentY + 30 || y + item.height > scroller.contentY + scroller.height - 30)
            scroller.contentY = Math.max(0, Math.min(scroller.contentHeight - scroller.height, y - scroller.height / 2));
    }
}
