// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Pasteboard.h"

#include <QByteArray>
#include <QList>

/// One target of a selection: what a client can ask for, and the property it gets as the answer.
struct SelectionOffer {
    QByteArray target;
    QByteArray type;
    int format = 8; // 8, 16 or 32 bits a unit
    QByteArray bytes;
    bool isText = false;
};

/// What a list of pasteboard items is offered as. A selection has one item: the first item's data wins. Plain text is
/// offered under each name text has, unless the item has data of its own for that name.
QList<SelectionOffer> selectionOffers(const PasteboardItem &item);

/// The items as one, the first one's data winning.
PasteboardItem mergedItem(const QList<PasteboardItem> &items);
