// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import QtQuick.Window
import Quillo

// A menu on paper.
T.Menu {
    id: menu

    implicitWidth: Math.min(280, contentItem.implicitWidth + 8)
    implicitHeight: Math.min(contentItem.implicitHeight + 8, Window.window !== null ? Window.window.height - 16 : 400)
    padding: 4
    margins: 4
    overlap: 4
    cascade: true

    delegate: PaperMenuItem {}

    contentItem: ListView {
        implicitHeight: contentHeight
        implicitWidth: {
            let widest = 120;
            for (let i = 0; i < menu.count; ++i)
                widest = Math.max(widest, menu.itemAt(i).implicitWidth);
            return widest;
        }
        model: menu.contentModel
        currentIndex: menu.currentIndex
        interactive: contentHeight > height
        clip: true
        keyNavigationWraps: true
    }

    background: RoundedRectangle {
        radius: 7
        color: Qt.lighter(Paper.background, 1.04)
        borderWidth: 1
        borderColor: Paper.divider
    }
}
