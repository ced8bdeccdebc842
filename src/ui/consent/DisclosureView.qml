// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// What happens to a recording, and the question whether that is agreed to.
Rectangle {
    id: view

    required property Disclosure model

    readonly property bool showsAgreement: model.isReview && model.isGranted

    implicitWidth: 440
    implicitHeight: column.implicitHeight + 48
    color: SystemColors.window

    Accessible.role: Accessible.Pane
    Accessible.name: title.text

    component Paragraph: Text {
        width: parent.width
        wrapMode: Text.Wrap
        font.pixelSize: 13
        color: SystemColors.text
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    component PageLink: Text {
        id: link

        required property string address

        visible: address !== ""
        font.pixelSize: 13
        font.underline: mouse.containsMouse || activeFocus
        color: SystemColors.accent
        activeFocusOnTab: true
        Accessible.role: Accessible.Link
        Accessible.name: text
        Accessible.onPressAction: open()
        Keys.onSpacePressed: open()
        Keys.onReturnPressed: open()
        Keys.onEnterPressed: open()

        function open() {
            Qt.openUrlExternally(address);
        }

        MouseArea {
            id: mouse
            anchors.fill: parent
            hoverEnabled: true
            cursorShape: Qt.PointingHandCursor
            onClicked: link.open()
        }
    }

    // The default and the cancel button, wherever the focus is. A button or link that has it takes the key itself.
    // A key held down since before the window came agrees to nothing.
    Keys.onReturnPressed: event => answer(true, event.isAutoRepeat)
    Keys.onEnterPressed: event => answer(true, event.isAutoRepeat)
    Keys.onEscapePressed: event => {
        event.accepted = !view.showsAgreement;
        if (event.accepted)
            model.keep(false);
    }

    function answer(isYes, isAutoRepeat) {
        if (isAutoRepeat)
            return;
        if (!isYes || view.showsAgreement)
            model.keep(isYes);
        else
            model.agree();
    }

    Column {
        id: column

        anchors { left: parent.left; right: parent.right; top: parent.top; margins: 24 }
        spacing: 16

        Paragraph {
            id: title
            text: view.model.isReview ? qsTr("Data & AI") : qsTr("Before we start")
            textFormat: Text.PlainText
            font.pixelSize: 22
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }

        Paragraph {
            text: qsTr("To turn your speech into text, this app sends your voice recording through our server to "
                       + "<b>OpenAI</b>, a third-party AI service in the United States.")
            textFormat: Text.StyledText
            font.pixelSize: 14
            Accessible.name: text.replace(/<.?b>/g, "")
        }

        Paragraph {
            text: qsTr("Our server passes your recording on without storing it. It keeps only your token balance "
                       + "and purchases, under a random ID created on this Mac — no name, email, account or "
                       + "location. Your recording is deleted once it has been transcribed, and your transcripts are "
                       + "stored only on this Mac.")
            textFormat: Text.PlainText
            color: SystemColors.secondary
        }

        Column {
            spacing: 6

            PageLink {
                text: qsTr("What OpenAI does with it ↗")
                address: view.model.openAIPrivacyURL
            }
            PageLink {
                text: qsTr("Our privacy policy ↗")
                address: view.model.privacyPolicyURL
            }
        }

        Paragraph {
            visible: view.model.server !== ""
            text: (view.model.isServerHere
                   ? qsTr("Recordings go to %1, on this computer: they stay here unless that server passes them on.")
                   : qsTr("Recordings go to %1.")).arg(view.model.server)
            textFormat: Text.PlainText
            font.pixelSize: 12
            color: SystemColors.secondary
        }

        Rectangle {
            width: parent.width
            height: 1
            color: SystemColors.separator
        }

        Paragraph {
            visible: view.showsAgreement
            text: qsTr("You agreed on %1.").arg(view.model.agreement)
            textFormat: Text.PlainText
            font.pixelSize: 12
            color: SystemColors.secondary
        }

        Item {
            id: answers

            // Side by side, or the one below the other where a language needs the room.
            readonly property bool isStacked: no.implicitWidth + 12 + yes.implicitWidth > width

            width: parent.width
            height: no.y + no.implicitHeight

            PushButton {
                id: no
                y: answers.isStacked ? yes.implicitHeight + 8 : 0
                text: view.showsAgreement ? qsTr("Withdraw consent") : view.model.isReview ? qsTr("Close")
                                                                                         : qsTr("Not now")
                isDestructive: view.showsAgreement
                onClicked: view.showsAgreement ? view.model.withdraw() : view.model.keep(false)
            }
            PushButton {
                id: yes
                anchors.right: parent.right
                text: view.showsAgreement ? qsTr("Keep it on") : qsTr("I agree — send to OpenAI")
                isDefault: true
                onClicked: view.answer(true, false)
            }
        }

        Paragraph {
            text: qsTr("You can withdraw this at any time from the menu bar under Data & AI. Without it, dictation "
                       + "stays off.")
            textFormat: Text.PlainText
            font.pixelSize: 11
            color: SystemColors.secondary
        }
    }
}
