#include "device/models/treerows.h"

#include <algorithm>

void DeviceTreeRows::setTree(OVTreeModel *tree)
{
    if (m_tree == tree)
        return;
    if (m_tree)
        m_tree->disconnect(this);
    m_tree = tree;
    if (m_tree) {
        connect(m_tree, &QAbstractItemModel::modelReset, this, &DeviceTreeRows::rebuild);
        connect(m_tree, &QAbstractItemModel::dataChanged, this, &DeviceTreeRows::forward);
        connect(m_tree, &QObject::destroyed, this, &DeviceTreeRows::rebuild); // m_tree is null by then
    }
    rebuild();
    Q_EMIT treeChanged();
}

void DeviceTreeRows::rebuild()
{
    beginResetModel();
    m_groups.clear();
    for (int group = 0; m_tree && group < m_tree->rowCount(); ++group) {
        const QModelIndex index = m_tree->index(group, 0);
        const QString type = m_tree->data(index, OVTreeModel::NameRole).toString();
        m_groups.append({.devices = m_tree->rowCount(index), .isOpen = !m_closed.contains(type)});
    }
    numberGroups();
    endResetModel();
}

void DeviceTreeRows::numberGroups()
{
    m_rows = 0;
    for (Group &group : m_groups) {
        group.row = m_rows;
        m_rows += 1 + (group.isOpen ? group.devices : 0);
    }
}

std::optional<DeviceTreeRows::Position> DeviceTreeRows::positionOf(int row) const
{
    if (row < 0 || row >= m_rows)
        return std::nullopt;
    const auto next = std::upper_bound(m_groups.cbegin(), m_groups.cend(), row,
                                       [](int wanted, const Group &group) { return wanted < group.row; });
    const auto group = std::prev(next);
    return Position{.group = static_cast<int>(group - m_groups.cbegin()), .device = row - group->row - 1};
}

QModelIndex DeviceTreeRows::treeIndex(const Position &position) const
{
    const QModelIndex group = m_tree->index(position.group, 0);
    return position.device < 0 ? group : m_tree->index(position.device, 0, group);
}

int DeviceTreeRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

QVariant DeviceTreeRows::data(const QModelIndex &index, int role) const
{
    const std::optional<Position> position = positionOf(index.row());
    if (!position || !m_tree)
        return {};
    const bool isGroup = position->device < 0;
    const auto fromTree = [&](int treeRole) {
        return m_tree->data(treeIndex(*position), treeRole);
    };
    switch (role) {
    case Qt::DisplayRole:
    case TitleRole:
        return fromTree(OVTreeModel::NameRole);
    case LabelRole:
        return fromTree(OVTreeModel::LabelRole);
    case DetailRole:
        return isGroup ? QString() : fromTree(Qt::ToolTipRole);
    case TickRole:
        return fromTree(OVTreeModel::IsCheckedRole);
    case ResultRole:
        return fromTree(OVTreeModel::CopyRetRole);
    case IsGroupRole:
        return isGroup;
    case IsOpenRole:
        return isGroup && m_groups.at(position->group).isOpen;
    case CountRole:
        return isGroup ? m_groups.at(position->group).devices : 0;
    case IdentityRole: // the prefix keeps the MAC of a device apart from the type of a group
        return (isGroup ? QStringLiteral("group ") : QStringLiteral("device ")) +
               fromTree(OVTreeModel::IdentityRole).toString();
    case FailureRole:
        return isGroup ? QString() : fromTree(OVTreeModel::FailureRole);
    case OnlyNotDoneRole:
        return !isGroup && fromTree(OVTreeModel::OnlyNotDoneRole).toBool();
    case IsNewRole:
        return !isGroup && fromTree(OVTreeModel::NewRole).toBool();
    default:
        return {};
    }
}

QHash<int, QByteArray> DeviceTreeRows::roleNames() const
{
    return {{TitleRole, "title"},
            {LabelRole, "label"},
            {DetailRole, "detail"},
            {TickRole, "tick"},
            {ResultRole, "result"},
            {IsGroupRole, "isGroup"},
            {IsOpenRole, "isOpen"},
            {CountRole, "deviceCount"},
            {IdentityRole, "identity"},
            {FailureRole, "failure"},
            {OnlyNotDoneRole, "onlyNotDone"},
            {IsNewRole, "isNew"}};
}

void DeviceTreeRows::setOpen(int row, bool open)
{
    const std::optional<Position> position = positionOf(row);
    if (!position || position->device >= 0 || !m_tree)
        return;
    Group &group = m_groups[position->group];
    if (group.isOpen == open)
        return;
    const QString type = m_tree->data(treeIndex(*position), OVTreeModel::NameRole).toString();
    if (open) {
        m_closed.remove(type);
        beginInsertRows({}, row + 1, row + group.devices);
    } else {
        m_closed.insert(type);
        beginRemoveRows({}, row + 1, row + group.devices);
    }
    group.isOpen = open;
    numberGroups();
    if (open)
        endInsertRows();
    else
        endRemoveRows();
    Q_EMIT dataChanged(index(row), index(row), {IsOpenRole});
}

void DeviceTreeRows::toggleOpen(int row)
{
    setOpen(row, !data(index(row), IsOpenRole).toBool());
}

void DeviceTreeRows::toggleTick(int row)
{
    const std::optional<Position> position = positionOf(row);
    if (!position || !m_tree)
        return;
    const QModelIndex index = treeIndex(*position);
    const bool isFullyChecked = m_tree->data(index, OVTreeModel::IsCheckedRole).toInt() == Qt::Checked;
    m_tree->setData(index, !isFullyChecked, OVTreeModel::IsCheckedRole);
}

int DeviceTreeRows::rowOf(const QString &identity) const
{
    int row = m_rows - 1;
    while (row >= 0 && identityAt(row) != identity)
        --row;
    return row;
}

QString DeviceTreeRows::deviceAt(int row) const
{
    const std::optional<Position> position = positionOf(row);
    return position && position->device >= 0 ? data(index(row), TitleRole).toString() : QString();
}

QString DeviceTreeRows::identityAt(int row) const
{
    return data(index(row), IdentityRole).toString();
}

QString DeviceTreeRows::nameAt(int row) const
{
    const std::optional<Position> position = positionOf(row);
    return position && position->device >= 0 && m_tree
               ? m_tree->data(treeIndex(*position), OVTreeModel::IdentityRole).toString()
               : QString();
}

int DeviceTreeRows::rowStarting(const QString &text, int from) const
{
    for (int step = 0; step < m_rows; ++step) {
        const int row = (std::max(from, 0) + step) % m_rows;
        if (deviceAt(row).startsWith(text, Qt::CaseInsensitive) ||
            data(index(row), DetailRole).toString().startsWith(text, Qt::CaseInsensitive))
            return row;
    }
    return -1;
}

int DeviceTreeRows::deviceAfter(const QString &ipport) const
{
    int row = 0;
    while (row < m_rows && deviceAt(row) != ipport)
        ++row;
    do {
        ++row;
    } while (row < m_rows && deviceAt(row).isEmpty());
    return row < m_rows ? row : -1;
}

int DeviceTreeRows::groupRowOf(int row) const
{
    const std::optional<Position> position = positionOf(row);
    return position ? m_groups.at(position->group).row : -1;
}

void DeviceTreeRows::forward(const QModelIndex &first, const QModelIndex &last)
{
    const QModelIndex parent = first.parent();
    if (!parent.isValid()) {
        for (int group = first.row(); group <= last.row(); ++group) {
            const QModelIndex changed = index(m_groups.at(group).row);
            Q_EMIT dataChanged(changed, changed);
        }
        return;
    }
    const Group &group = m_groups.at(parent.row());
    if (group.isOpen)
        Q_EMIT dataChanged(index(group.row + 1 + first.row()), index(group.row + 1 + last.row()));
}
