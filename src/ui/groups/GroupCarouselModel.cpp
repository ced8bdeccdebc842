// SPDX-License-Identifier: MIT
#include "ui/groups/GroupCarouselModel.h"

#include "store/GroupStore.h"

#include <algorithm>

GroupCarouselModel::GroupCarouselModel(GroupStore &groups) : m_groups(groups), m_count(1 + int(groups.groups().size()))
{
    connect(&groups, &GroupStore::groupsChanged, this, [this] {
        const int count = 1 + int(m_groups.groups().size());
        replaceRows(count, [&] { m_count = count; });
        Q_EMIT activeChanged();
    });
    connect(&groups, &GroupStore::activeIdChanged, this, [this] {
        Q_EMIT activeChanged();
        Q_EMIT activated();
    });
}

int GroupCarouselModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_count;
}

QVariant GroupCarouselModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || role != NameRole) {
        return {};
    }
    if (index.row() == 0) {
        return tr("All entries");
    }
    const QString name = m_groups.groups().value(index.row() - 1).name;
    return name.isEmpty() ? tr("Untitled") : name;
}

QHash<int, QByteArray> GroupCarouselModel::roleNames() const
{
    return {{NameRole, "name"}};
}

int GroupCarouselModel::activeRow() const
{
    const auto &groups = m_groups.groups();
    const auto active =
        std::ranges::find_if(groups, [this](const DictationGroup &group) { return m_groups.activeId() == group.id; });
    return active == groups.end() ? 0 : 1 + int(active - groups.begin());
}

QString GroupCarouselModel::activeHint() const
{
    const auto active = m_groups.group(m_groups.activeId());
    return active ? tr("Dictations go into %1 while it's selected.").arg(active->name) : QString();
}

void GroupCarouselModel::activate(int row)
{
    const auto &groups = m_groups.groups();
    if (row == 0) {
        m_groups.setActiveId(std::nullopt);
    } else if (row > 0 && row <= groups.size()) {
        m_groups.setActiveId(groups.at(row - 1).id);
    }
}
