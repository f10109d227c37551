#include "device/models/treemodel.h"

#include "device/registry/devicefactory.h"
#include "device/registry/devicefamily.h"
#include "device/registry/loginresult.h"
#include "device/registry/upgradetools.h"
#include "device/store/deviceorder.h"
#include "device/store/devicerow.h"

#include <QJsonObject>
#include <QSet>

#include <algorithm>
#include <numeric>
#include <utility>

OVTreeModel::OVTreeModel(QObject *parent) : QAbstractItemModel(parent) {}

// The internal id of a group is 0; that of a device is the row of its group plus 1.

QModelIndex OVTreeModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, parent.isValid() ? quintptr(parent.row()) + 1 : quintptr(0));
}

QModelIndex OVTreeModel::parent(const QModelIndex &child) const
{
    if (!child.isValid() || isGroup(child))
        return {};
    return createIndex(static_cast<int>(child.internalId()) - 1, 0, quintptr(0));
}

int OVTreeModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return static_cast<int>(m_groups.size());
    return isGroup(parent) && parent.column() == 0
               ? static_cast<int>(m_groups.at(parent.row()).devices.size())
               : 0;
}

int OVTreeModel::columnCount(const QModelIndex &) const
{
    return 1;
}

const OVTreeModel::Group &OVTreeModel::groupOf(const QModelIndex &device) const
{
    return m_groups.at(static_cast<qsizetype>(device.internalId()) - 1);
}

QVariant OVTreeModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    return isGroup(index) ? groupData(m_groups.at(index.row()), role)
                          : deviceData(groupOf(index).devices.at(index.row()), role);
}

QVariant OVTreeModel::groupData(const Group &group, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
    case NameRole:
    case LabelRole:
    case IdentityRole:
        return group.type;
    case IsCheckedRole:
        if (group.checkedCount == 0)
            return Qt::Unchecked;
        return group.checkedCount == group.devices.size() ? Qt::Checked : Qt::PartiallyChecked;
    case CopyRetRole:
        return NoResult;
    default:
        return {};
    }
}

QVariant OVTreeModel::deviceData(const Device &device, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
    case NameRole:
        return device.ipport;
    case LabelRole:
        return device.ipport.endsWith(m_usualPort) ? device.ipport.chopped(m_usualPort.size())
                                                   : device.ipport;
    case IsCheckedRole:
        return device.checked ? Qt::Checked : Qt::Unchecked;
    case CopyRetRole:
        return device.copyRet;
    case IdentityRole:
        return device.identity;
    case FailureRole:
        return m_failedMarks.messagesOf(device.identity, device.isLost);
    case OnlyNotDoneRole:
        return m_failedMarks.isOnlyNotDone(device.identity);
    case NewRole:
        return device.isNew;
    case Qt::ToolTipRole:
        return device.detail;
    default:
        return {};
    }
}

bool OVTreeModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return false;
    if (role == IsCheckedRole) {
        const bool checked = value.toInt() != Qt::Unchecked;
        if (isGroup(index))
            checkGroup(index, checked);
        else
            setDeviceChecked(index, checked);
        Q_EMIT checkedDevicesChanged();
        return true;
    }
    if (role == CopyRetRole && !isGroup(index)) {
        writeResult(index, value.toInt());
        return true;
    }
    return false;
}

void OVTreeModel::checkGroup(const QModelIndex &group, bool checked)
{
    Group &changed = m_groups[group.row()];
    for (Device &device : changed.devices)
        device.checked = checked;
    changed.checkedCount = checked ? static_cast<int>(changed.devices.size()) : 0;
    Q_EMIT dataChanged(group, group, {IsCheckedRole});
    Q_EMIT dataChanged(index(0, 0, group), index(rowCount(group) - 1, 0, group), {IsCheckedRole});
}

void OVTreeModel::setDeviceChecked(const QModelIndex &device, bool checked)
{
    Group &group = m_groups[static_cast<qsizetype>(device.internalId()) - 1];
    if (std::exchange(group.devices[device.row()].checked, checked) == checked)
        return;
    group.checkedCount += checked ? 1 : -1;
    Q_EMIT dataChanged(device, device, {IsCheckedRole});
    Q_EMIT dataChanged(device.parent(), device.parent(), {IsCheckedRole});
}

void OVTreeModel::setAllChecked(bool checked)
{
    for (int group = 0; group < m_groups.size(); ++group)
        checkGroup(index(group, 0), checked);
    Q_EMIT checkedDevicesChanged();
}

void OVTreeModel::setCheckedDevices(const QStringList &identities)
{
    QSet<QString> hidden(identities.cbegin(), identities.cend());
    for (int group = 0; group < m_groups.size(); ++group) {
        const QModelIndex parent = index(group, 0);
        for (int row = 0; row < rowCount(parent); ++row)
            setDeviceChecked(index(row, 0, parent),
                             hidden.remove(m_groups.at(group).devices.at(row).identity));
    }
    for (Device &device : m_remembered)
        device.checked = hidden.remove(device.identity);
    for (const QString &identity : std::as_const(hidden))
        m_remembered.insert(identity, {.identity = identity, .ipport = {}, .checked = true});
    Q_EMIT checkedDevicesChanged();
}

void OVTreeModel::checkSimilar(const QString &identity, const QString &key)
{
    if (!m_deviceFactory)
        return;
    QHash<QString, QString> values;
    const QVariantList rows = readRows();
    for (const QVariant &row : rows) {
        const QJsonObject device = row.toJsonObject();
        values.insert(rowName(device), device.value(key).toString());
    }
    if (!values.contains(identity))
        return;
    QStringList similar;
    for (const Group &group : std::as_const(m_groups)) {
        for (const Device &device : group.devices) {
            if (values.value(device.identity) == values.value(identity))
                similar.append(device.identity);
        }
    }
    setCheckedDevices(similar);
}

void OVTreeModel::writeResult(const QModelIndex &device, int result)
{
    Group &group = m_groups[static_cast<qsizetype>(device.internalId()) - 1];
    if (std::exchange(group.devices[device.row()].copyRet, result) != result)
        Q_EMIT dataChanged(device, device, {CopyRetRole});
}

void OVTreeModel::setResult(const QString &ipport, int result)
{
    const auto [first, last] = std::as_const(m_positions).equal_range(ipport);
    for (auto position = first; position != last; ++position)
        writeResult(index(position->second, 0, index(position->first, 0)), result);
}

void OVTreeModel::setResultOfAll(const QStringList &ipports, int result)
{
    for (const QString &ipport : ipports)
        setResult(ipport, result);
}

void OVTreeModel::takeResults(const QStringList &ipports, const QList<int> &results, const QStringList &texts)
{
    for (qsizetype position = 0; position < std::min(ipports.size(), results.size()); ++position) {
        int result = results.at(position);
        if (result == resultCode(LoginResult::Unknown))
            result = WaitsForPassword;
        else if (result == resultCode(LoginResult::Success) && !texts.value(position).isEmpty())
            result = PartlyDone;
        setResult(ipports.at(position), result);
    }
}

void OVTreeModel::clearResults()
{
    for (Device &device : m_remembered)
        device.copyRet = NoResult;
    for (int group = 0; group < m_groups.size(); ++group) {
        for (Device &device : m_groups[group].devices)
            device.copyRet = NoResult;
        const QModelIndex parent = index(group, 0);
        Q_EMIT dataChanged(index(0, 0, parent), index(rowCount(parent) - 1, 0, parent), {CopyRetRole});
    }
}

QHash<int, QByteArray> OVTreeModel::roleNames() const
{
    return {{NameRole, "name"}, {IsCheckedRole, "isChecked"}, {CopyRetRole, "copyRet"}};
}

CDeviceFactory *OVTreeModel::deviceFactory() const
{
    return m_deviceFactory;
}

void OVTreeModel::setDeviceFactory(CDeviceFactory *deviceFactory)
{
    if (std::exchange(m_deviceFactory, deviceFactory) != deviceFactory)
        Q_EMIT deviceFactoryChanged();
}

void OVTreeModel::setFailedMarks(FailedMarks *marks)
{
    m_failedMarks.follow(marks, this, &OVTreeModel::failedMarksChanged, &OVTreeModel::updateMarks);
}

void OVTreeModel::setKnownDevices(KnownDevices *known)
{
    if (m_known == known)
        return;
    if (m_known)
        m_known->disconnect(this);
    m_known = known;
    const auto readAgain = [this] {
        if (!m_filterType.isEmpty()) // the tree was filled before
            resetItems(m_filterType, m_searchText);
    };
    if (m_known)
        connect(m_known, &KnownDevices::changed, this, readAgain);
    Q_EMIT knownDevicesChanged();
    readAgain();
}

void OVTreeModel::setShown(Shown shown)
{
    if (std::exchange(m_shown, shown) == shown)
        return;
    m_failedMarks.setOperation({});
    Q_EMIT shownChanged();
    resetItems(m_filterType, m_searchText);
}

void OVTreeModel::setFailedOperation(const QString &operation)
{
    if (!m_failedMarks.setOperation(operation))
        return;
    Q_EMIT shownChanged();
    resetItems(m_filterType, m_searchText);
}

void OVTreeModel::updateMarks()
{
    if (m_failedMarks.settleOperation())
        Q_EMIT shownChanged();
    countFailed();
    if (m_shown == Failed && (m_failedMarks.isEmpty() || (m_failedCount == 0 && m_searchText.isEmpty())))
        return setShown(All);
    if (m_shown == Failed)
        return resetItems(m_filterType, m_searchText);
    Q_EMIT checkedDevicesChanged();
    for (int group = 0; group < m_groups.size(); ++group) {
        const QModelIndex parent = index(group, 0);
        Q_EMIT dataChanged(index(0, 0, parent), index(rowCount(parent) - 1, 0, parent), {FailureRole});
    }
}

QVariantList OVTreeModel::readRows() const
{
    return DeviceOrder(DeviceRowKey::ipport)
        .ordered(m_deviceFactory->filterData(dhFamily, m_filterType, m_searchText));
}

void OVTreeModel::noteUsualPort(const QVariantList &rows)
{
    QHash<QString, int> devices;
    int most = 0;
    m_usualPort.clear();
    for (const QVariant &row : rows) {
        const QString ipport = row.toJsonObject().value(DeviceRowKey::ipport).toString();
        const QString port = ipport.mid(ipport.lastIndexOf(QLatin1Char(':')));
        const int count = ++devices[port];
        if (count <= most)
            continue;
        most = count;
        m_usualPort = port;
    }
}

QString OVTreeModel::groupNameOf(const QJsonObject &row, const QString &identity) const
{
    if (m_shown == Failed)
        return m_failedMarks.reasonOf(identity);
    if (m_shown == LoggedOut && row.value(DeviceRowKey::loggedIn).toBool())
        return {};
    const QString type = row.value(DeviceRowKey::type).toString();
    return type.isEmpty() ? otherDeviceType() : type;
}

void OVTreeModel::countFailed()
{
    m_failedCount =
        static_cast<int>(std::count_if(m_found.cbegin(), m_found.cend(), [this](const QString &identity) {
            return m_failedMarks.contains(identity);
        }));
}

int OVTreeModel::failedElsewhereCount() const
{
    return m_searchText.isEmpty() && !m_failedMarks.isEmpty() ? m_failedMarks.count() - m_failedCount : 0;
}

void OVTreeModel::rememberDevices()
{
    for (const Group &group : std::as_const(m_groups)) {
        for (const Device &device : group.devices) {
            if (device.checked || device.copyRet != NoResult)
                m_remembered.insert(device.identity, device);
            else
                m_remembered.remove(device.identity);
        }
    }
}

void OVTreeModel::resetItems(const QString &type, const QString &searchText)
{
    if (!m_deviceFactory)
        return;
    m_filterType = type;
    m_searchText = searchText;
    const QVariantList rows = readRows();
    rememberDevices();
    noteUsualPort(rows);
    m_loggedOutCount = 0;
    m_unaddressedCount = 0;
    m_found.clear();

    QHash<QString, qsizetype> indexByName;
    QList<Group> groups;
    for (const QVariant &row : rows) {
        const QJsonObject values = row.toJsonObject();
        if (rowAddress(values).isEmpty()) { // waiting for DHCP: a login is not possible
            ++m_unaddressedCount;
            continue;
        }
        m_loggedOutCount += values.value(DeviceRowKey::loggedIn).toBool() ? 0 : 1;
        const QString identity = rowName(values);
        m_found.append(identity);
        const QString name = groupNameOf(values, identity);
        if (name.isEmpty())
            continue;
        const auto known = indexByName.constFind(name);
        const qsizetype position = known == indexByName.cend() ? groups.size() : *known;
        if (known == indexByName.cend()) {
            indexByName.insert(name, position);
            groups.append({.type = name, .devices = {}});
        }
        const Device device = deviceOf(identity, values);
        groups[position].devices.append(device);
        groups[position].checkedCount += device.checked ? 1 : 0;
    }
    std::sort(groups.begin(), groups.end(), [](const Group &left, const Group &right) {
        return DeviceOrder::isGroupBefore(left.type, right.type);
    });

    countFailed();
    beginResetModel();
    m_groups = std::move(groups);
    updatePositions();
    endResetModel();
    Q_EMIT checkedDevicesChanged();
}

OVTreeModel::Device OVTreeModel::deviceOf(const QString &identity, const QJsonObject &row) const
{
    Device device = m_remembered.value(identity, {.identity = identity, .ipport = {}});
    device.ipport = row.value(DeviceRowKey::ipport).toString();
    device.detail =
        deviceTitle(row.value(DeviceRowKey::name).toString(), row.value(DeviceRowKey::model).toString());
    device.isUpgrading =
        UpgradeTools::isRunning(row.value(DeviceRowKey::upgraderes).toInt(UpgradeTools::None));
    device.isLost = row.value(DeviceRowKey::lost).toBool();
    QJsonObject values = row;
    if (m_known)
        m_known->addValues(values, false);
    device.isNew = values.value(SiteKey::presence).toInt() == int(Presence::New);
    return device;
}

void OVTreeModel::updatePositions()
{
    m_positions.clear();
    m_positions.reserve(deviceCount());
    for (int group = 0; group < m_groups.size(); ++group) {
        const QList<Device> &devices = m_groups.at(group).devices;
        for (int row = 0; row < devices.size(); ++row)
            m_positions.insert(devices.at(row).ipport, {group, row});
    }
}

int OVTreeModel::checkedCount() const
{
    return std::accumulate(m_groups.cbegin(), m_groups.cend(), 0,
                           [](int sum, const Group &group) { return sum + group.checkedCount; });
}

int OVTreeModel::checkedUpgradingCount() const
{
    return std::accumulate(m_groups.cbegin(), m_groups.cend(), 0, [](int sum, const Group &group) {
        return sum + static_cast<int>(std::count_if(
                         group.devices.cbegin(), group.devices.cend(),
                         [](const Device &device) { return device.checked && device.isUpgrading; }));
    });
}

int OVTreeModel::deviceCount() const
{
    return std::accumulate(m_groups.cbegin(), m_groups.cend(), 0, [](int sum, const Group &group) {
        return sum + static_cast<int>(group.devices.size());
    });
}

Qt::CheckState OVTreeModel::checkState() const
{
    const int checked = checkedCount();
    if (checked == 0)
        return Qt::Unchecked;
    return checked == deviceCount() ? Qt::Checked : Qt::PartiallyChecked;
}

QStringList OVTreeModel::checkedDevices() const
{
    QStringList devices;
    for (const Group &group : m_groups) {
        for (const Device &device : group.devices) {
            if (device.checked)
                devices.append(device.ipport);
        }
    }
    return devices;
}

QVariantList OVTreeModel::devicesToWatch() const
{
    QVariantList devices;
    if (!m_deviceFactory)
        return devices;
    const bool isAny = checkedCount() > 0;
    for (const Group &group : m_groups) {
        for (const Device &device : group.devices) {
            if (isAny && !device.checked)
                continue;
            const QString name =
                m_deviceFactory->getDeviceInfo(dhFamily, device.ipport).value(DeviceRowKey::name).toString();
            devices.append(QVariantMap{{DeviceRowKey::ipport, device.ipport}, {DeviceRowKey::name, name}});
        }
    }
    return devices;
}

bool OVTreeModel::areTicked(const QStringList &devices) const
{
    QStringList ticked = checkedDevices();
    QStringList wanted = devices;
    ticked.sort();
    wanted.sort();
    return ticked == wanted;
}

QStringList OVTreeModel::without(const QStringList &devices, const QString &device)
{
    QStringList others = devices;
    others.removeAll(device);
    return others;
}
