#include "device/models/watcheddevices.h"

#include "device/models/modelkeys.h"
#include "device/registry/devicefactory.h"
#include "device/registry/devicefamily.h"
#include "device/registry/mapkeys.h"
#include "device/store/devicerow.h"

#include <algorithm>

namespace {

enum WatchedRole
{
    AddressRole = Qt::UserRole,
    NameRole,
};

} // namespace

int WatchedDevices::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_further.size());
}

QVariant WatchedDevices::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Device &device = m_further.at(index.row());
    return role == AddressRole ? device.ipport : role == NameRole ? device.name : QVariant();
}

QHash<int, QByteArray> WatchedDevices::roleNames() const
{
    return {{AddressRole, "ipport"}, {NameRole, "name"}};
}

void WatchedDevices::setFirst(const QString &ipport, const QString &name, const QVariantList &channels)
{
    m_first.ipport = ipport;
    m_first.name = name;
    m_first.channels = channels;
    gather();
}

QVariantList WatchedDevices::add(const QVariantList &rows)
{
    QList<Device> added;
    m_leftOut = 0;
    for (const QVariant &value : rows) {
        const QVariantMap row = value.toMap();
        const QString ipport = row.value(DeviceRowKey::ipport).toString();
        const bool isAdded = std::any_of(added.cbegin(), added.cend(),
                                         [&](const Device &device) { return device.ipport == ipport; });
        if (ipport == m_first.ipport || positionOf(ipport) >= 0 || isAdded)
            continue;
        if (m_further.size() + added.size() >= most()) {
            ++m_leftOut;
            continue;
        }
        QString name = ipport;
        for (const QLatin1StringView key : {DeviceRowKey::model, DeviceRowKey::name}) {
            if (const QString text = row.value(key).toString(); !text.isEmpty())
                name = text;
        }
        added.append({.ipport = ipport, .name = name});
    }
    if (!added.isEmpty()) {
        const int first = rowCount();
        beginInsertRows({}, first, first + static_cast<int>(added.size()) - 1);
        m_further.append(added);
        endInsertRows(); // QML creates the companions, which call setChannels()
    }
    Q_EMIT countChanged();
    gather();

    QVariantList indexes;
    for (const Device &device : std::as_const(added)) {
        const auto channel = std::find_if(m_channels.cbegin(), m_channels.cend(), [&](const QVariant &entry) {
            return entry.toMap().value(DeviceRowKey::ipport) == device.ipport;
        });
        if (channel != m_channels.cend())
            indexes.append(static_cast<int>(channel - m_channels.cbegin()));
    }
    return indexes;
}

void WatchedDevices::setChannels(const QString &ipport, QObject *companion, const QVariantList &channels)
{
    const qsizetype position = positionOf(ipport);
    if (position < 0)
        return;
    m_further[position].companion = companion;
    m_further[position].channels = channels;
    gather();
}

void WatchedDevices::remove(const QString &ipport)
{
    const qsizetype position = positionOf(ipport);
    if (position < 0)
        return;
    m_further[position].channels.clear();
    gather();
    const int row = static_cast<int>(position);
    beginRemoveRows({}, row, row);
    m_further.removeAt(position);
    endRemoveRows();
    Q_EMIT countChanged();
    gather(); // a single device has no heading
}

void WatchedDevices::clear()
{
    if (m_further.isEmpty())
        return;
    for (Device &device : m_further)
        device.channels.clear();
    gather();
    beginResetModel();
    m_further.clear();
    endResetModel();
    Q_EMIT countChanged();
    gather();
}

void WatchedDevices::readNames()
{
    if (!m_deviceFactory)
        return;
    for (qsizetype position = 0; position < m_further.size(); ++position) {
        Device &device = m_further[position];
        const QVariantMap row = m_deviceFactory->getDeviceInfo(dhFamily, device.ipport);
        const QString name = row.value(DeviceRowKey::name).toString();
        if (name.isEmpty() || name == device.name)
            continue;
        device.name = name;
        const QModelIndex changed = index(static_cast<int>(position));
        Q_EMIT dataChanged(changed, changed, {NameRole});
    }
    gather();
}

qsizetype WatchedDevices::positionOf(const QString &ipport) const
{
    const auto device = std::find_if(m_further.cbegin(), m_further.cend(),
                                     [&](const Device &known) { return known.ipport == ipport; });
    return device == m_further.cend() ? -1 : device - m_further.cbegin();
}

QString WatchedDevices::titleOf(const Device &device) const
{
    if (device.name.isEmpty())
        return device.ipport;
    const auto isNamesake = [&](const Device &other) {
        return other.name == device.name && other.ipport != device.ipport;
    };
    const bool isUnique =
        !isNamesake(m_first) && std::none_of(m_further.cbegin(), m_further.cend(), isNamesake);
    return isUnique ? device.name : device.name + QLatin1Char(' ') + device.ipport;
}

void WatchedDevices::gather()
{
    QVariantList channels;
    const auto append = [&](const Device &device, const QVariant &companion) {
        const QString title = titleOf(device);
        bool isFirst = true;
        for (const QVariant &value : device.channels) {
            QVariantMap entry = value.toMap();
            const QString name = entry.value(ChannelKey::name).toString();
            const int number = entry.value(ChannelKey::channel).toInt() + 1;
            QString caption = name;
            if (!m_further.isEmpty() && name.isEmpty())
                caption = title;
            else if (!m_further.isEmpty() && !name.startsWith(title))
                caption = title + QStringLiteral(" · ") + name;
            if (!m_further.isEmpty() && isFirst)
                entry.insert(RowKey::heading, title);
            entry.insert(DeviceRowKey::ipport, device.ipport);
            entry.insert(ChannelKey::name, name.isEmpty() ? tr("通道 %1").arg(number) : name);
            entry.insert(RowKey::caption, caption);
            entry.insert(RowKey::companion, companion);
            channels.append(entry);
            isFirst = false;
        }
    };
    append(m_first, QVariant::fromValue(nullptr));
    for (const Device &device : std::as_const(m_further)) {
        if (device.companion)
            append(device, QVariant::fromValue(device.companion.data()));
    }
    if (m_channels == channels)
        return;
    m_channels = channels;
    Q_EMIT channelsChanged();
}
