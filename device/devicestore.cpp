#include "device/devicestore.h"

#include "device/devicerow.h"
#include "sdk/clock.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace {

/// A search announces its rows at most once in so many milliseconds.
constexpr std::int64_t notificationInterval = 1000;

constexpr QLatin1StringView loopbackAddress("127.0.0.1");

// Four fifths of an answer are reserved bytes, nearly always zero: a list of 10,000 devices would hold 25 MB
// of them.

QByteArray bytesOf(const sdk::SearchAnswer &answer)
{
    const char *bytes = reinterpret_cast<const char *>(&answer);
    qsizetype size = sizeof(answer);
    while (size > 0 && bytes[size - 1] == 0)
        --size;
    return QByteArray(bytes, size);
}

sdk::SearchAnswer answerOf(const QByteArray &bytes)
{
    sdk::SearchAnswer answer{};
    std::memcpy(&answer, bytes.constData(), std::min(static_cast<std::size_t>(bytes.size()), sizeof(answer)));
    return answer;
}

} // namespace

DeviceStore::DeviceStore(std::shared_ptr<const sdk::Clock> clock) : m_clock(std::move(clock)) {}

DeviceStore::Addition DeviceStore::addAnswer(const sdk::SearchAnswer &answer)
{
    const bool ipv4 = hasIPv4Address(answer);
    const QString mac = macText(answer);
    DeviceRowList &list = ipv4 ? m_ipv4 : m_ipv6;
    // An IPv6 device may have several addresses, each of them a way to it; the same one twice is one answer
    // that arrived again, as every device answers each kind of search.
    // A device that does not tell its MAC is known by its address.
    const QString identity = !ipv4           ? mac + QLatin1Char(' ') + addressAndPort(answer)
                             : mac.isEmpty() ? addressAndPort(answer)
                                             : mac;
    {
        // Most answers are repeated ones: drop them before a row is built.
        const std::scoped_lock lock(m_mutex);
        if (list.contains(identity))
            return {};
    }

    const QJsonObject row = ipv4 ? ipv4Row(answer) : ipv6Row(answer);
    const bool heads = ipv4 && row.value(DeviceRowKey::type).toString() != otherDeviceType() &&
                       row.value(DeviceRowKey::ipport).toString().contains(loopbackAddress);
    const QByteArray record = bytesOf(answer);

    const std::scoped_lock lock(m_mutex);
    if (list.contains(identity))
        return {};
    if (heads)
        list.prepend(identity, row);
    else
        list.append(identity, row);

    // Requests to a device are built from its IPv4 answer, so that one takes the place of an IPv6 answer.
    const QString recordKey = ipv4 ? identity : mac;
    if (ipv4 || !m_records.contains(recordKey))
        m_records.insert(recordKey, record);

    return {
        .added = true, .notify = isNotificationDue(), .ipv4Count = static_cast<int>(m_ipv4.rows().size())};
}

void DeviceStore::clear()
{
    const std::scoped_lock lock(m_mutex);
    m_ipv4 = {};
    m_ipv6 = {};
    m_records.clear();
}

QVariantList DeviceStore::ipv4Rows() const
{
    const std::scoped_lock lock(m_mutex);
    return m_ipv4.rows();
}

QVariantList DeviceStore::ipv6Rows() const
{
    const std::scoped_lock lock(m_mutex);
    return m_ipv6.rows();
}

int DeviceStore::ipv4Count() const
{
    const std::scoped_lock lock(m_mutex);
    return static_cast<int>(m_ipv4.rows().size());
}

std::optional<sdk::SearchAnswer> DeviceStore::record(const QString &mac) const
{
    const std::scoped_lock lock(m_mutex);
    const auto record = m_records.constFind(mac);
    return record == m_records.cend() ? std::nullopt : std::optional(answerOf(*record));
}

void DeviceStore::putRecord(const sdk::SearchAnswer &answer)
{
    const std::scoped_lock lock(m_mutex);
    m_records.insert(macText(answer), bytesOf(answer));
}

QJsonObject DeviceStore::row(const QString &mac) const
{
    const std::scoped_lock lock(m_mutex);
    return m_ipv4.row(mac);
}

QJsonObject DeviceStore::rowAt(const QString &ipport) const
{
    const std::scoped_lock lock(m_mutex);
    const std::optional<QString> identity = identityAt(m_ipv4, ipport);
    return identity ? m_ipv4.row(*identity) : QJsonObject();
}

std::optional<QString> DeviceStore::ipv6IdentityLocked(const QString &name) const
{
    return name.isEmpty() ? std::nullopt : identityAt(m_ipv6, name);
}

QJsonObject DeviceStore::rowNamed(const QString &name) const
{
    const std::scoped_lock lock(m_mutex);
    if (m_ipv4.contains(name))
        return m_ipv4.row(name);
    const std::optional<QString> identity = ipv6IdentityLocked(name);
    return identity ? m_ipv6.row(*identity) : QJsonObject();
}

bool DeviceStore::changeRowNamed(const QString &name, const DeviceRowList::Change &change)
{
    const std::scoped_lock lock(m_mutex);
    if (m_ipv4.change(name, change))
        return true;
    const std::optional<QString> identity = ipv6IdentityLocked(name);
    return identity && m_ipv6.change(*identity, change);
}

bool DeviceStore::changeRow(const QString &mac, const DeviceRowList::Change &change)
{
    const std::scoped_lock lock(m_mutex);
    return m_ipv4.change(mac, change);
}

bool DeviceStore::changeRowAt(const QString &ipport, const DeviceRowList::Change &change)
{
    const std::scoped_lock lock(m_mutex);
    for (DeviceRowList *list : {&m_ipv4, &m_ipv6}) {
        if (const std::optional<QString> identity = identityAt(*list, ipport))
            return list->change(*identity, change);
    }
    return false;
}

void DeviceStore::putRow(const QJsonObject &row)
{
    const QString mac = row.value(DeviceRowKey::mac).toString();
    const std::scoped_lock lock(m_mutex);
    // A device that does not tell its MAC is known by its address.
    const QString identity = mac.isEmpty() ? row.value(DeviceRowKey::ipport).toString() : mac;
    if (!m_ipv4.change(identity, [&row](QJsonObject &stored) { stored = row; }))
        m_ipv4.append(identity, row);
}

void DeviceStore::removeRows(const QSet<QString> &macs)
{
    const std::scoped_lock lock(m_mutex);
    m_ipv4.remove(macs);
    for (const QString &mac : macs)
        m_records.remove(mac);
}

void DeviceStore::removeIPv6Rows(const QSet<QString> &ipports)
{
    const std::scoped_lock lock(m_mutex);
    m_ipv6.remove(m_ipv6.identitiesOf([&ipports](const QJsonObject &row) {
        return ipports.contains(row.value(DeviceRowKey::ipport).toString());
    }));
}

std::optional<QString> DeviceStore::identityAt(const DeviceRowList &list, const QString &ipport)
{
    return list.identityOf(
        [&ipport](const QJsonObject &row) { return row.value(DeviceRowKey::ipport).toString() == ipport; });
}

bool DeviceStore::isNotificationDue()
{
    const std::int64_t now = m_clock->now();
    if (!m_lastNotification)
        m_lastNotification = now;
    const bool clockSetBack = now < *m_lastNotification;
    if (!clockSetBack && now - *m_lastNotification < notificationInterval)
        return false;
    m_lastNotification = now;
    return true;
}
