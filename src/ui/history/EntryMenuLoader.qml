// SPDX-License-Identifier: MIT
import QtQuick
import Quillo

// Makes the context menu when it is first wanted.
Loader {
    id: loader

    required property HistoryModel history

    active: false
    sourceComponent: EntryMenu { history: loader.history }

    function open(row, position) {
        active = true;
        (item as EntryMenu).openFor(row, position);
    }
}
