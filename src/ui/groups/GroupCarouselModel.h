// SPDX-License-Identifier: MIT
#pragma once

#include "ui/models/InPlaceListModel.h"

#include <QString>
#include <QtQml/qqmlregistration.h>

class GroupStore;

/// The chips of the group carousel: "All entries", then every group. Main thread only.
class GroupCarouselModel : public InPlaceListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The window makes it")
    /// The chip of the active group.
    Q_PROPERTY(int activeRow READ activeRow NOTIFY activeChanged)
    /// "Dictations go into Work while it's selected."; empty without an active group.
    Q_PROPERTY(QString activeHint READ activeHint NOTIFY activeChanged)

public:
    enum Role { NameRole = Qt::UserRole };

    explicit GroupCarouselModel(GroupStore &groups);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    int activeRow() const;
    QString activeHint() const;

    /// Makes the chip's group the active one. Rows outside the list are ignored.
    Q_INVOKABLE void activate(int row);

Q_SIGNALS:
    /// Another group has been made the active one.
    void activated();
    /// Its row or name has changed, or it is another.
    void activeChanged();

private:
    GroupStore &m_groups;
    int m_count = 1;
};
