// SPDX-License-Identifier: MIT
#pragma once

#include "ui/models/InPlaceListModel.h"

#include <QString>
#include <QtQml/qqmlregistration.h>

class GroupStore;

/// The groups as the group editor lists and changes them; every change is stored at once. Main thread only.
class GroupEditorModel : public InPlaceListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The window makes it")
    /// Text of the field for a new group.
    Q_PROPERTY(QString newName READ newName WRITE setNewName NOTIFY newNameChanged)
    Q_PROPERTY(bool canAdd READ canAdd NOTIFY newNameChanged)

public:
    enum Role { NameRole = Qt::UserRole };

    explicit GroupEditorModel(GroupStore &groups);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    const QString &newName() const { return m_newName; }
    void setNewName(const QString &name);
    /// The name is more than blanks.
    bool canAdd() const;

    /// Appends a group with the new name, without the blanks around it, and empties the field.
    Q_INVOKABLE void add();
    Q_INVOKABLE void rename(int row, const QString &name);
    Q_INVOKABLE void remove(int row);
    /// Moves a row before the one that is at `destination` now; the count means the end.
    Q_INVOKABLE void move(int row, int destination);

Q_SIGNALS:
    void newNameChanged();

private:
    GroupStore &m_groups;
    int m_count = 0;
    QString m_newName;
};
