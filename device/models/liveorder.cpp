#include "device/models/liveorder.h"

#include "device/models/devicetablemodel.h"
#include "device/models/modelkeys.h"
#include "device/registry/devicefactory.h"
#include "device/registry/devicefamily.h"
#include "device/store/devicerow.h"

#include <QJsonObject>

#include <algorithm>

namespace {

/// A device can be watched if it is listed, initialised, and has an address.
bool canBeWatched(const QVariantMap &row)
{
    const QString ipport = row.value(DeviceRowKey::ipport).toString();
    return !row.value(RowKey::absent).toBool() && row.value(DeviceRowKey::state, true).toBool() &&
           !ipport.isEmpty() && !ipport.startsWith(QLatin1Char(':'));
}

QString addressOf(const QVariant &row)
{
    return row.toMap().value(DeviceRowKey::ipport).toString();
}

} // namespace

CDeviceFactory *LiveOrder::deviceFactory() const
{
    return m_deviceFactory;
}

void LiveOrder::setDeviceFactory(CDeviceFactory *deviceFactory)
{
    if (m_deviceFactory == deviceFactory)
        return;
    m_deviceFactory = deviceFactory;
    Q_EMIT deviceFactoryChanged();
}

DeviceTableModel *LiveOrder::table() const
{
    return m_table;
}

void LiveOrder::setTable(DeviceTableModel *table)
{
    if (m_table == table)
        return;
    if (m_table)
        m_table->disconnect(this);
    m_table = table;
    if (m_table) {
        connect(m_table, &DeviceTableModel::countChanged, this, &LiveOrder::countChanged);
        connect(m_table, &DeviceTableModel::checkedCountChanged, this, &LiveOrder::tickedChanged);
    }
    Q_EMIT tableChanged();
    Q_EMIT countChanged();
    Q_EMIT tickedChanged();
}

void LiveOrder::setChosen(const QVariantList &chosen)
{
    if (m_chosen == chosen)
        return;
    m_chosen = chosen;
    Q_EMIT chosenChanged();
    Q_EMIT countChanged();
}

int LiveOrder::count() const
{
    if (!m_chosen.isEmpty())
        return static_cast<int>(m_chosen.size());
    return m_table ? m_table->rowCount() : 0;
}

int LiveOrder::ticked() const
{
    return m_table ? m_table->checkedCount() : 0;
}

int LiveOrder::positionOf(const QString &ipport) const
{
    if (!m_chosen.isEmpty()) {
        const auto position = std::find_if(m_chosen.cbegin(), m_chosen.cend(),
                                           [&](const QVariant &row) { return addressOf(row) == ipport; });
        return position == m_chosen.cend() ? -1 : static_cast<int>(position - m_chosen.cbegin());
    }
    if (!m_table || !m_deviceFactory)
        return -1;
    const QVariantMap row = m_deviceFactory->getDeviceInfo(dhFamily, ipport);
    const int position = m_table->rowOf(rowName(QJsonObject::fromVariantMap(row)));
    if (position >= 0)
        return position;
    // The table may show another row with the same address.
    for (int other = 0; other < m_table->rowCount(); ++other) {
        if (addressOf(m_table->get(other)) == ipport)
            return other;
    }
    return -1;
}

QVariantMap LiveOrder::at(int position) const
{
    return m_chosen.isEmpty() ? m_table->get(position) : m_chosen.at(position).toMap();
}

QString LiveOrder::neighbour(const QString &ipport, int direction) const
{
    for (int position = positionOf(ipport) + direction; position >= 0 && position < count();
         position += direction) {
        const QVariantMap row = at(position);
        if (canBeWatched(row) && addressOf(row) != ipport)
            return addressOf(row);
    }
    return {};
}

QVariantList LiveOrder::tickedDevices() const
{
    QVariantList devices = m_table ? m_table->checkedRows() : QVariantList();
    devices.removeIf([](const QVariant &row) { return !canBeWatched(row.toMap()); });
    return devices;
}
