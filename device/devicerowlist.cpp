#include "device/devicerowlist.h"

#include <utility>

void DeviceRowList::append(const QString &identity, const QJsonObject &row)
{
    m_places.insert(identity, m_placeOfFront + m_rows.size());
    m_rows.append(row);
    m_identities.append(identity);
}

void DeviceRowList::prepend(const QString &identity, const QJsonObject &row)
{
    m_places.insert(identity, --m_placeOfFront);
    m_rows.prepend(row);
    m_identities.prepend(identity);
}

QJsonObject DeviceRowList::row(const QString &identity) const
{
    const auto place = m_places.constFind(identity);
    return place == m_places.cend() ? QJsonObject() : m_rows.at(*place - m_placeOfFront).toJsonObject();
}

std::optional<QString>
DeviceRowList::identityOf(const std::function<bool(const QJsonObject &)> &isMeant) const
{
    for (qsizetype place = 0; place < m_rows.size(); ++place) {
        if (isMeant(m_rows.at(place).toJsonObject()))
            return m_identities.at(place);
    }
    return std::nullopt;
}

QSet<QString> DeviceRowList::identitiesOf(const std::function<bool(const QJsonObject &)> &isMeant) const
{
    QSet<QString> identities;
    for (qsizetype place = 0; place < m_rows.size(); ++place) {
        if (isMeant(m_rows.at(place).toJsonObject()))
            identities.insert(m_identities.at(place));
    }
    return identities;
}

bool DeviceRowList::change(const QString &identity, const Change &change)
{
    const auto place = m_places.constFind(identity);
    if (place == m_places.cend())
        return false;
    QVariant &stored = m_rows[*place - m_placeOfFront];
    QJsonObject row = stored.toJsonObject();
    change(row);
    stored = row;
    return true;
}

int DeviceRowList::remove(const QSet<QString> &identities)
{
    DeviceRowList kept;
    for (qsizetype place = 0; place < m_rows.size(); ++place) {
        if (!identities.contains(m_identities.at(place)))
            kept.append(m_identities.at(place), m_rows.at(place).toJsonObject());
    }
    const int removed = static_cast<int>(m_rows.size() - kept.m_rows.size());
    if (removed > 0)
        *this = std::move(kept);
    return removed;
}
