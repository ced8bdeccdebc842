// SPDX-License-Identifier: MIT
#include "ui/groups/GroupEditorModel.h"

#include "store/GroupStore.h"
#include "ui/models/trimmedBlanks.h"

GroupEditorModel::GroupEditorModel(GroupStore &groups) : m_groups(groups), m_count(int(groups.groups().size()))
{
    connect(&groups, &GroupStore::groupsChanged, this, [this] {
        const int count = int(m_groups.groups().size());
        replaceRows(count, [&] { m_count = count; });
    });
}

int GroupEditorModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_count;
}

QVariant GroupEditorModel::data(const QModelIndex &index, int role) const
{
    const bool isKnown = checkIndex(index, CheckIndexOption::IndexIsValid) && role == NameRole;
    return isKnown ? m_groups.groups().value(index.row()).name : QVariant();
}

QHash<int, QByteArray> GroupEditorModel::roleNames() const
{
    return {{NameRole, "name"}};
}

void GroupEditorModel::setNewName(const QString &name)
{
    if (m_newName != name) {
        m_newName = name;
        Q_EMIT newNameChanged();
    }
}

bool GroupEditorModel::canAdd() const
{
    return !trimmedBlanks(m_newName).isEmpty();
}

void GroupEditorModel::add()
{
    if (canAdd()) {
        m_groups.add(trimmedBlanks(m_newName));
        setNewName({});
    }
}

void GroupEditorModel::rename(int row, const QString &name)
{
    m_groups.rename(QString(m_groups.groups().at(row).id), name);
}

void GroupEditorModel::remove(int row)
{
    m_groups.remove(QString(m_groups.groups().at(row).id)); // a copy: the group goes
}

void GroupEditorModel::move(int row, int destination)
{
    m_groups.move({row}, destination);
}
