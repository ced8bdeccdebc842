// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractListModel>

#include <algorithm>

/// A list whose content can be replaced without a reset: a view keeps its rows, what they show changes in place, and
/// only the difference in length comes or goes at the end. Much cheaper than making all rows anew, and a text field in
/// a row keeps its cursor.
class InPlaceListModel : public QAbstractListModel {
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

protected:
    /// `apply` puts the new content in place; `rowCount` answers `count` afterwards.
    template <typename Apply> void replaceRows(int count, Apply apply)
    {
        const int before = rowCount();
        if (count > before) {
            beginInsertRows({}, before, count - 1);
            apply();
            endInsertRows();
        } else if (count < before) {
            beginRemoveRows({}, count, before - 1);
            apply();
            endRemoveRows();
        } else {
            apply();
        }
        if (const int kept = std::min(before, count); kept > 0) {
            Q_EMIT dataChanged(index(0), index(kept - 1));
        }
    }
};
