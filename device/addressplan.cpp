#include "device/addressplan.h"

#include "device/devicefactory.h"
#include "device/devicerow.h"
#include "device/ipv4address.h"

#include <QSet>

#include <algorithm>
#include <utility>

namespace {

QString deviceName(const QJsonObject &row)
{
    const QString name = row.value(DeviceRowKey::model).toString() + QLatin1Char(' ') +
                         row.value(DeviceRowKey::mac).toString();
    return name.trimmed().isEmpty() ? row.value(DeviceRowKey::ipport).toString() : name.trimmed();
}

} // namespace

AddressPlan::AddressPlan(QObject *parent) : DialogRows(parent) {}

int AddressPlan::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

CDeviceFactory *AddressPlan::deviceFactory() const
{
    return m_deviceFactory;
}

void AddressPlan::setDeviceFactory(CDeviceFactory *deviceFactory)
{
    m_deviceFactory = deviceFactory;
    Q_EMIT planChanged();
}

void AddressPlan::setStartAddress(const QString &startAddress)
{
    if (std::exchange(m_startAddress, startAddress) != startAddress)
        plan();
}

void AddressPlan::setMask(const QString &mask)
{
    if (std::exchange(m_mask, mask) != mask)
        plan();
}

void AddressPlan::setGateway(const QString &gateway)
{
    if (std::exchange(m_gateway, gateway) != gateway)
        Q_EMIT planChanged();
}

bool AddressPlan::isGatewayOutside() const
{
    const std::optional<std::uint32_t> start = ipv4Number(m_startAddress);
    const std::optional<std::uint32_t> mask = ipv4Number(m_mask);
    const std::optional<std::uint32_t> gateway = ipv4Number(m_gateway);
    return start && gateway && mask && isSubnetMask(*mask) && (*gateway & *mask) != (*start & *mask);
}

void AddressPlan::setSameAddress(bool sameAddress)
{
    if (std::exchange(m_sameAddress, sameAddress) != sameAddress)
        plan();
}

void AddressPlan::setDevices(const QVariantList &rows)
{
    beginResetModel();
    m_rows.clear();
    m_rows.reserve(rows.size());
    QSet<QString> batch;
    for (const QVariant &value : rows) {
        const QVariantMap device = value.toMap();
        QVariantMap shown;
        for (const QLatin1StringView key : {DeviceRowKey::name, DeviceRowKey::mac, DeviceRowKey::ipport})
            shown.insert(key, device.value(key));
        shown.insert(QStringLiteral("identity"), identityOf(device));
        m_rows.append({.values = shown, .initialised = device.value(DeviceRowKey::state).toBool()});
        // Without a password it refuses, and keeps the address that it has.
        if (m_rows.constLast().initialised)
            batch.insert(identityOf(device));
    }
    m_taken.clear();
    const QVariantList all =
        m_deviceFactory ? m_deviceFactory->filterData(QStringLiteral("dh"), QStringLiteral("nofilter"))
                        : QVariantList();
    for (const QVariant &value : all) {
        const QJsonObject row = value.toJsonObject();
        const QString mac = row.value(DeviceRowKey::mac).toString();
        const QString ipport = row.value(DeviceRowKey::ipport).toString();
        if (batch.contains(mac.isEmpty() ? ipport : mac))
            continue; // it gives its address up
        if (const auto address = ipv4Number(QStringView(ipport).left(ipport.lastIndexOf(QLatin1Char(':')))))
            m_taken.insert(*address, deviceName(row));
    }
    endResetModel();
    plan();
}

void AddressPlan::plan()
{
    const std::optional<std::uint32_t> start = ipv4Number(m_startAddress);
    m_planned = start.has_value();
    QHash<std::uint32_t, int> timesGiven;
    timesGiven.reserve(m_rows.size());
    std::uint32_t step = 0;
    for (Row &row : m_rows) {
        row.address = start.value_or(0) + step; // over the highest address it begins at the lowest again
        step += m_sameAddress ? 0 : 1;
        timesGiven[row.address] += row.initialised ? 1 : 0;
    }
    for (Row &row : m_rows)
        row.mark = m_planned ? markOf(row, *start, timesGiven) : Fine;
    m_markedCount = static_cast<int>(
        std::count_if(m_rows.cbegin(), m_rows.cend(), [](const Row &row) { return row.mark != Fine; }));
    if (!m_rows.isEmpty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
    Q_EMIT planChanged();
}

AddressPlan::Mark AddressPlan::markOf(const Row &row, std::uint32_t start,
                                      const QHash<std::uint32_t, int> &timesGiven) const
{
    if (!row.initialised)
        return NotInitialised;
    if (m_taken.contains(row.address))
        return TakenByOther;
    if (timesGiven.value(row.address) > 1)
        return TakenInBatch;
    const std::optional<std::uint32_t> mask = ipv4Number(m_mask);
    if (!mask || !isSubnetMask(*mask))
        return Fine; // the field says that the mask is none
    if ((row.address & *mask) != (start & *mask))
        return OutsideSubnet;
    const std::uint32_t host = row.address & ~*mask;
    return host == 0 || host == ~*mask ? NoDeviceAddress : Fine;
}

QString AddressPlan::addressOf(int row) const
{
    return m_planned && row >= 0 && row < rowCount() ? ipv4Text(m_rows.at(row).address) : QString();
}

QStringList AddressPlan::identities() const
{
    QStringList identities;
    for (const Row &row : m_rows)
        identities.append(identityOf(row.values));
    return identities;
}

QStringList AddressPlan::addresses() const
{
    QStringList addresses;
    for (int row = 0; row < rowCount(); ++row)
        addresses.append(addressOf(row));
    return addresses;
}

QString AddressPlan::otherDeviceAt(int row) const
{
    return m_planned && row >= 0 && row < rowCount() ? m_taken.value(m_rows.at(row).address) : QString();
}

bool AddressPlan::isInConflict(int row) const
{
    const Mark mark = m_rows.at(row).mark;
    return mark == TakenByOther || mark == TakenInBatch;
}

QVariantMap AddressPlan::valuesOf(int row) const
{
    QVariantMap values = m_rows.at(row).values;
    values.insert(DeviceRowKey::num, row + 1);
    values.insert(QStringLiteral("address"), addressOf(row));
    values.insert(QStringLiteral("mark"), m_rows.at(row).mark);
    return values;
}
