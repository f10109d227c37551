#include "device/registry/devicerowlist.h"

#include "device/registry/devicerow.h"

#include <algorithm>
#include <utility>

void DeviceRowList::append(const QString &name, const QJsonObject &row)
{
    const qsizetype place = m_placeOfFront + m_rows.size();
    m_places.insert(name, place);
    m_rows.append(row);
    m_names.append(name);
    addAddress(row, place);
}

void DeviceRowList::prepend(const QString &name, const QJsonObject &row)
{
    m_places.insert(name, --m_placeOfFront);
    m_rows.prepend(row);
    m_names.prepend(name);
    addAddress(row, m_placeOfFront);
}

QJsonObject DeviceRowList::row(const QString &name) const
{
    const auto place = m_places.constFind(name);
    return place == m_places.cend() ? QJsonObject() : m_rows.at(*place - m_placeOfFront).toJsonObject();
}

std::optional<QString> DeviceRowList::nameAt(const QString &ipport) const
{
    const auto places = m_placesByAddress.constFind(ipport);
    if (places == m_placesByAddress.cend())
        return std::nullopt;
    const auto isFound = [this](qsizetype place) {
        const QJsonObject row = m_rows.at(place - m_placeOfFront).toJsonObject();
        return !row.value(DeviceRowKey::lost).toBool();
    };
    const auto found =
        places->size() == 1 ? places->cbegin() : std::find_if(places->cbegin(), places->cend(), isFound);
    return m_names.at((found == places->cend() ? places->first() : *found) - m_placeOfFront);
}

QStringList DeviceRowList::namesAt(const QString &ipport) const
{
    QStringList names;
    const QList<qsizetype> places = m_placesByAddress.value(ipport);
    for (const qsizetype place : places)
        names.append(m_names.at(place - m_placeOfFront));
    return names;
}

void DeviceRowList::replace(const QString &name, QJsonObject row)
{
    // Work that began before goes on to name the row as it was.
    if (rowName(row) != name)
        row.insert(DeviceRowKey::identity, name);
    const qsizetype place = m_places.value(name);
    QVariant &stored = m_rows[place - m_placeOfFront];
    const QJsonObject before = stored.toJsonObject();
    stored = row;
    if (before.value(DeviceRowKey::ipport) == row.value(DeviceRowKey::ipport))
        return;
    removeAddress(before, place);
    addAddress(row, place);
}

void DeviceRowList::remove(const QSet<QString> &names)
{
    DeviceRowList kept;
    for (qsizetype place = 0; place < m_rows.size(); ++place) {
        if (!names.contains(m_names.at(place)))
            kept.append(m_names.at(place), m_rows.at(place).toJsonObject());
    }
    if (kept.m_rows.size() < m_rows.size())
        *this = std::move(kept);
}

void DeviceRowList::addAddress(const QJsonObject &row, qsizetype place)
{
    QList<qsizetype> &places = m_placesByAddress[row.value(DeviceRowKey::ipport).toString()];
    places.insert(std::lower_bound(places.cbegin(), places.cend(), place), place);
}

void DeviceRowList::removeAddress(const QJsonObject &row, qsizetype place)
{
    const QString ipport = row.value(DeviceRowKey::ipport).toString();
    QList<qsizetype> &places = m_placesByAddress[ipport];
    places.erase(std::lower_bound(places.cbegin(), places.cend(), place));
    if (places.isEmpty())
        m_placesByAddress.remove(ipport);
}
