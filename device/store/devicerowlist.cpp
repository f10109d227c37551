#include "device/store/devicerowlist.h"

#include "device/store/devicerow.h"

#include <algorithm>
#include <utility>

void DeviceRowList::append(const QString &name, const QJsonObject &row)
{
    const qsizetype position = m_firstPosition + m_rows.size();
    m_positions.insert(name, position);
    m_rows.append(row);
    m_names.append(name);
    addAddress(row, position);
}

void DeviceRowList::prepend(const QString &name, const QJsonObject &row)
{
    m_positions.insert(name, --m_firstPosition);
    m_rows.prepend(row);
    m_names.prepend(name);
    addAddress(row, m_firstPosition);
}

QJsonObject DeviceRowList::row(const QString &name) const
{
    const auto position = m_positions.constFind(name);
    return position == m_positions.cend() ? QJsonObject()
                                          : m_rows.at(*position - m_firstPosition).toJsonObject();
}

std::optional<QString> DeviceRowList::nameAt(const QString &ipport) const
{
    const auto positions = m_positionsByAddress.constFind(ipport);
    if (positions == m_positionsByAddress.cend())
        return std::nullopt;
    const auto isFound = [this](qsizetype position) {
        const QJsonObject row = m_rows.at(position - m_firstPosition).toJsonObject();
        return !row.value(DeviceRowKey::lost).toBool();
    };
    const auto found = positions->size() == 1 ? positions->cbegin()
                                              : std::find_if(positions->cbegin(), positions->cend(), isFound);
    return m_names.at((found == positions->cend() ? positions->first() : *found) - m_firstPosition);
}

QStringList DeviceRowList::namesAt(const QString &ipport) const
{
    QStringList names;
    const QList<qsizetype> positions = m_positionsByAddress.value(ipport);
    for (const qsizetype position : positions)
        names.append(m_names.at(position - m_firstPosition));
    return names;
}

void DeviceRowList::replace(const QString &name, QJsonObject row)
{
    // Running work uses the old name.
    if (rowName(row) != name)
        row.insert(DeviceRowKey::identity, name);
    const qsizetype position = m_positions.value(name);
    QVariant &stored = m_rows[position - m_firstPosition];
    const QJsonObject before = stored.toJsonObject();
    stored = row;
    if (before.value(DeviceRowKey::ipport) == row.value(DeviceRowKey::ipport))
        return;
    removeAddress(before, position);
    addAddress(row, position);
}

void DeviceRowList::remove(const QSet<QString> &names)
{
    DeviceRowList kept;
    for (qsizetype position = 0; position < m_rows.size(); ++position) {
        if (!names.contains(m_names.at(position)))
            kept.append(m_names.at(position), m_rows.at(position).toJsonObject());
    }
    if (kept.m_rows.size() < m_rows.size())
        *this = std::move(kept);
}

void DeviceRowList::addAddress(const QJsonObject &row, qsizetype position)
{
    QList<qsizetype> &positions = m_positionsByAddress[row.value(DeviceRowKey::ipport).toString()];
    positions.insert(std::lower_bound(positions.cbegin(), positions.cend(), position), position);
}

void DeviceRowList::removeAddress(const QJsonObject &row, qsizetype position)
{
    const QString ipport = row.value(DeviceRowKey::ipport).toString();
    QList<qsizetype> &positions = m_positionsByAddress[ipport];
    positions.erase(std::lower_bound(positions.cbegin(), positions.cend(), position));
    if (positions.isEmpty())
        m_positionsByAddress.remove(ipport);
}
