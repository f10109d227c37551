#include "device/store/devicestore.h"

#include "device/store/devicerow.h"
#include "sdk/clock.h"

#include <QVarLengthArray>

#include <algorithm>
#include <cstring>
#include <limits>
#include <string_view>
#include <utility>

namespace {

/// Minimum interval between two notifications in milliseconds.
constexpr std::int64_t notificationInterval = 1000;

constexpr QLatin1StringView loopbackAddress("127.0.0.1");

// Most bytes of a response are zero: reserved bytes and unused parts of string fields. Unpacked, 10,000
// responses would need 30 MB. A packed response consists of the chunks between longer runs of zeros.

/// Precedes each chunk.
struct ChunkHeader
{
    std::uint16_t zeros; ///< number of zero bytes before the chunk
    std::uint16_t size;  ///< of the chunk in bytes
};
static_assert(sizeof(sdk::SearchResponse) <= std::numeric_limits<std::uint16_t>::max());

QByteArray packed(const sdk::SearchResponse &response)
{
    constexpr std::string_view run("\0\0\0\0", sizeof(ChunkHeader)); // shorter runs are not worth a header
    const std::string_view bytes(reinterpret_cast<const char *>(&response), sizeof(response));
    QVarLengthArray<char, sizeof(response)> chunks;
    std::size_t end = 0;
    for (std::size_t start = bytes.find_first_not_of('\0'); start != std::string_view::npos;
         start = bytes.find_first_not_of('\0', end)) {
        const std::size_t zeros = start - end;
        end = std::min(bytes.find(run, start), bytes.size());
        const std::string_view chunk = bytes.substr(start, end - start);
        const ChunkHeader header = {static_cast<std::uint16_t>(zeros),
                                    static_cast<std::uint16_t>(chunk.size())};
        chunks.append(reinterpret_cast<const char *>(&header), sizeof(header));
        chunks.append(chunk.data(), static_cast<qsizetype>(chunk.size()));
    }
    return QByteArray(chunks.constData(), chunks.size());
}

sdk::SearchResponse unpacked(const QByteArray &chunks)
{
    sdk::SearchResponse response{};
    char *next = reinterpret_cast<char *>(&response);
    const char *chunk = chunks.cbegin();
    while (chunk != chunks.cend()) {
        ChunkHeader header;
        std::memcpy(&header, chunk, sizeof(header));
        next = std::copy_n(chunk + sizeof(header), header.size, next + header.zeros);
        chunk += sizeof(header) + header.size;
    }
    return response;
}

} // namespace

DeviceStore::DeviceStore(std::shared_ptr<const sdk::Clock> clock) : m_clock(std::move(clock)) {}

DeviceStore::Addition DeviceStore::addResponse(const sdk::SearchResponse &response)
{
    const bool ipv4 = hasIPv4Address(response);
    const QString mac = macText(response);
    {
        // Most responses are repeated ones: they are dropped before a row is built.
        const std::scoped_lock lock(m_mutex);
        const QString identity = identityOf(response);
        if (isDropped(identity)) {
            const bool isChanged = ipv4 && takeMac(identity, mac);
            return {.added = false, .notify = isChanged && isNotificationDue(), .ipv4Count = countIPv4()};
        }
    }

    QJsonObject row = ipv4 ? ipv4Row(response) : ipv6Row(response);
    const bool isPrepended = ipv4 && row.value(DeviceRowKey::type).toString() != otherDeviceType() &&
                             row.value(DeviceRowKey::ipport).toString().contains(loopbackAddress);
    const QByteArray record = packed(response);
    const QString uuid = uuidName(response);

    const std::scoped_lock lock(m_mutex);
    const QString identity = identityOf(response);
    if (isDropped(identity))
        return {};
    m_settled.insert(identity);
    ++m_found;
    if (ipv4 && rowName(row) != identity)
        row.insert(DeviceRowKey::identity, identity);
    if (!ipv4)
        addIPv6(row);
    else if (m_lost.remove(identity))
        m_ipv4.replace(identity, row);
    else if (isPrepended)
        m_ipv4.prepend(identity, row);
    else
        m_ipv4.append(identity, row);
    if (ipv4 && !uuid.isEmpty() && !m_uuidHolders.contains(uuid))
        m_uuidHolders.insert(uuid, {.ipport = addressAndPort(response), .name = identity});

    // Requests to a device are built from its IPv4 response, which therefore replaces an IPv6 response.
    const QString recordKey = ipv4 ? identity : mac;
    if (ipv4 || !m_records.contains(recordKey))
        m_records.insert(recordKey, record);

    return {.added = true, .notify = isNotificationDue(), .ipv4Count = countIPv4()};
}

QString DeviceStore::identityOf(const sdk::SearchResponse &response) const
{
    const QString mac = macText(response);
    QString ipport = addressAndPort(response);
    // An IPv6 device may have several addresses, each with a row. The same address again is a repeated
    // response: every device responds to each kind of search.
    if (!hasIPv4Address(response))
        return mac + QLatin1Char(' ') + ipport;
    QString uuid = uuidName(response);
    const UuidHolder holder = m_uuidHolders.value(uuid);
    if (!mac.isEmpty()) {
        // The row of the UUID is that of the same device if it has not reported its MAC before. Other devices
        // may have the same UUID and address, since manufacturers copy both. A row from before the search has
        // no holder yet.
        const QString known = m_ipv4.row(uuid).value(DeviceRowKey::mac).toString();
        const bool isHolder = holder.ipport == ipport && holder.name == uuid;
        const bool isListedBefore = holder.name.isEmpty() && m_ipv4.contains(uuid) && !m_ipv4.contains(mac);
        return (isHolder || isListedBefore) && (known.isEmpty() || known == mac) ? uuid : mac;
    }
    if (uuid.isEmpty())
        return ipport;
    if (holder.name.isEmpty())
        return uuid;
    return holder.ipport == ipport ? holder.name : ipport;
}

bool DeviceStore::takeMac(const QString &name, const QString &mac)
{
    QJsonObject row = m_ipv4.row(name);
    const bool isMissing = !row.isEmpty() && row.value(DeviceRowKey::mac).toString().isEmpty();
    if (mac.isEmpty() || !isMissing || m_ipv4.contains(mac))
        return false;
    row.insert(DeviceRowKey::mac, mac);
    m_ipv4.replace(name, row);
    return true;
}

bool DeviceStore::isDropped(const QString &identity)
{
    const bool isListed = m_ipv4.contains(identity) && !m_lost.contains(identity); // it was added manually
    if (m_settled.contains(identity) || isListed)
        return true;
    if (m_found < maximumFound)
        return false;
    if (m_leftOut < std::numeric_limits<int>::max())
        ++m_leftOut;
    return true;
}

void DeviceStore::addIPv6(QJsonObject &row)
{
    int &before = m_ipv6Found[row.value(DeviceRowKey::ipport).toString()];
    if (before > 0)
        row.insert(DeviceRowKey::duplicate, before);
    ++before;
    const QString name = rowName(row);
    if (m_ipv6.contains(name)) // a lost row: rows found since clear() have other numbers
        m_ipv6.replace(name, row);
    else
        m_ipv6.append(name, row);
}

int DeviceStore::leftOut() const
{
    const std::scoped_lock lock(m_mutex);
    return m_leftOut;
}

QString DeviceStore::nameOf(const sdk::SearchResponse &response) const
{
    QString mac = macText(response);
    const QString uuid = uuidName(response);
    const std::scoped_lock lock(m_mutex);
    if (m_ipv4.contains(mac))
        return mac;
    const auto macOf = [this](const QString &name) {
        return m_ipv4.row(name).value(DeviceRowKey::mac).toString();
    };
    // The row at the address has priority over the row of the UUID, which another device may report as well.
    if (mac.isEmpty()) {
        const QStringList names = m_ipv4.namesAt(addressAndPort(response));
        const auto isOwn = [&](const QString &name) {
            const bool isOther = name.startsWith(uuidPrefix) && !uuid.isEmpty() && name != uuid;
            return macOf(name).isEmpty() && !isOther;
        };
        const auto name = std::find_if(names.cbegin(), names.cend(), isOwn);
        if (name != names.cend())
            return *name;
    }
    const QString known = macOf(uuid);
    const bool isOwn = mac.isEmpty() || known.isEmpty() || known == mac;
    return m_ipv4.contains(uuid) && isOwn ? uuid : QString();
}

bool DeviceStore::updateRow(const QString &name, const sdk::SearchResponse &response, const QString &address)
{
    const QJsonObject now = ipv4Row(response);
    const std::scoped_lock lock(m_mutex);
    QJsonObject row = m_ipv4.row(name);
    if (row.isEmpty() || rowAddress(row) != address)
        return false;
    for (const QLatin1StringView key : {DeviceRowKey::name, DeviceRowKey::model, DeviceRowKey::vision}) {
        if (!now.value(key).toString().isEmpty())
            row.insert(key, now.value(key));
    }
    if (row.value(DeviceRowKey::mac).toString().isEmpty())
        row.insert(DeviceRowKey::mac, now.value(DeviceRowKey::mac));
    row.insert(DeviceRowKey::state, now.value(DeviceRowKey::state));
    row.insert(DeviceRowKey::ipport, now.value(DeviceRowKey::ipport));
    row.insert(DeviceRowKey::unconfirmed, false);
    row.remove(DeviceRowKey::lost);
    m_lost.remove(name);
    if (!row.value(DeviceRowKey::https).toBool()) // a response contains the HTTP port only
        row.insert(DeviceRowKey::httpport, now.value(DeviceRowKey::httpport));
    m_ipv4.replace(name, row);
    m_records.insert(name, packed(response));
    return true;
}

void DeviceStore::setKept(const QSet<QString> &names)
{
    const std::scoped_lock lock(m_mutex);
    m_kept = names;
}

void DeviceStore::clear()
{
    const std::scoped_lock lock(m_mutex);
    QHash<QString, QByteArray> records;
    m_lost.clear();
    for (DeviceRowList *list : {&m_ipv4, &m_ipv6}) {
        DeviceRowList kept;
        for (const QVariant &value : m_kept.isEmpty() ? QVariantList() : list->rows()) {
            QJsonObject row = value.toJsonObject();
            const QString name = rowName(row);
            if (!m_kept.contains(name))
                continue;
            row.insert(DeviceRowKey::lost, true);
            kept.append(name, row);
            if (list == &m_ipv4)
                m_lost.insert(name);
            if (const auto record = m_records.constFind(name); record != m_records.cend())
                records.insert(name, *record);
        }
        *list = std::move(kept);
    }
    m_records = std::move(records);
    m_settled.clear();
    m_uuidHolders.clear();
    m_ipv6Found.clear();
    m_found = 0;
    m_leftOut = 0;
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
    return countIPv4();
}

int DeviceStore::countIPv4() const
{
    return static_cast<int>(m_ipv4.rows().size() - m_lost.size());
}

std::optional<sdk::SearchResponse> DeviceStore::record(const QString &name) const
{
    const std::scoped_lock lock(m_mutex);
    const auto record = m_records.constFind(name);
    return record == m_records.cend() ? std::nullopt : std::optional(unpacked(*record));
}

void DeviceStore::putRecord(const QString &name, const sdk::SearchResponse &response)
{
    const std::scoped_lock lock(m_mutex);
    m_records.insert(name, packed(response));
}

QJsonObject DeviceStore::row(const QString &mac) const
{
    const std::scoped_lock lock(m_mutex);
    return m_ipv4.row(mac);
}

QJsonObject DeviceStore::rowAt(const QString &ipport) const
{
    const std::scoped_lock lock(m_mutex);
    const std::optional<QString> name = m_ipv4.nameAt(ipport);
    return name ? m_ipv4.row(*name) : QJsonObject();
}

QStringList DeviceStore::namesAt(const QString &ipport) const
{
    const std::scoped_lock lock(m_mutex);
    return m_ipv4.namesAt(ipport) + m_ipv6.namesAt(ipport);
}

QJsonObject DeviceStore::rowNamed(const QString &name) const
{
    const std::scoped_lock lock(m_mutex);
    return m_ipv4.contains(name) ? m_ipv4.row(name) : m_ipv6.row(name);
}

bool DeviceStore::changeRowNamed(const QString &name, const Change &change)
{
    return changeFound(
        [&]() -> RowReference {
            for (DeviceRowList *list : {&m_ipv4, &m_ipv6}) {
                if (list->contains(name))
                    return {.list = list, .name = name};
            }
            return {};
        },
        change);
}

bool DeviceStore::changeRow(const QString &mac, const Change &change)
{
    return changeFound(
        [&] { return m_ipv4.contains(mac) ? RowReference{.list = &m_ipv4, .name = mac} : RowReference(); },
        change);
}

bool DeviceStore::changeRowAt(const QString &ipport, const Change &change)
{
    return changeFound(
        [&]() -> RowReference {
            for (DeviceRowList *list : {&m_ipv4, &m_ipv6}) {
                if (const std::optional<QString> name = list->nameAt(ipport))
                    return {.list = list, .name = *name};
            }
            return {};
        },
        change);
}

bool DeviceStore::changeFound(const Finder &find, const Change &change)
{
    QJsonObject before;
    QJsonObject row;
    for (bool first = true;; first = false) {
        {
            const std::scoped_lock lock(m_mutex);
            const RowReference found = find();
            if (!found.list)
                return false;
            const QJsonObject stored = found.list->row(found.name);
            if (!first && stored == before) {
                found.list->replace(found.name, row);
                return true;
            }
            before = stored;
        }
        row = before;
        change(row);
    }
}

void DeviceStore::upsertRow(QJsonObject row, const std::optional<sdk::SearchResponse> &response)
{
    const std::scoped_lock lock(m_mutex);
    // A name made of an address stays with the first device of that address, also after its address has
    // changed.
    const auto isOfOther = [this, &row] {
        const QJsonObject kept = m_ipv4.row(rowName(row));
        const bool hasIdentity = !row.value(DeviceRowKey::identity).toString().isEmpty() ||
                                 !row.value(DeviceRowKey::mac).toString().isEmpty();
        return !hasIdentity && !kept.isEmpty() &&
               kept.value(DeviceRowKey::ipport) != row.value(DeviceRowKey::ipport);
    };
    for (int before = 1; isOfOther(); ++before)
        row.insert(DeviceRowKey::duplicate, before);
    const QString name = rowName(row);
    if (response)
        m_records.insert(name, packed(*response));
    row.insert(DeviceRowKey::num, QString::number(m_ipv4.rows().size() + 1));
    m_lost.remove(name);
    if (m_ipv4.contains(name))
        m_ipv4.replace(name, row);
    else
        m_ipv4.append(name, row);
}

void DeviceStore::removeRows(const QSet<QString> &names)
{
    const std::scoped_lock lock(m_mutex);
    for (const QString &name : names) {
        if (m_ipv4.contains(name))
            m_settled.insert(name);
        m_records.remove(name);
        m_lost.remove(name);
    }
    m_ipv4.remove(names);
}

void DeviceStore::removeIPv6Rows(const QSet<QString> &names)
{
    const std::scoped_lock lock(m_mutex);
    m_ipv6.remove(names);
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
