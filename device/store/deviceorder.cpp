#include "device/store/deviceorder.h"

#include "device/store/devicerow.h"
#include "device/store/ipv4address.h"
#include "device/store/ipv6address.h"

#include <algorithm>
#include <cctype>
#include <optional>
#include <utility>
#include <vector>

namespace {

enum AddressGroup
{
    FirstGroup,
    IPv6Group,
    UnreadableGroup,
};

void appendNumber(QByteArray &bytes, std::uint32_t number, int size)
{
    for (int shift = 8 * (size - 1); shift >= 0; shift -= 8)
        bytes.append(static_cast<char>(number >> shift));
}

/// Rank of a group of devices: other types first, then these two.
int groupRank(const QString &type)
{
    if (type == otherDeviceType())
        return 2;
    return type == QLatin1String("PC-NVR") ? 1 : 0;
}

/// The bytes of a MAC with or without separators; empty for other texts.
QByteArray macBytes(const QString &mac)
{
    constexpr qsizetype digits = 12;
    const QByteArray text = mac.toLatin1().replace(':', "").replace('-', "");
    const bool isMac = text.size() == digits && std::all_of(text.cbegin(), text.cend(), [](char digit) {
                           return std::isxdigit(static_cast<unsigned char>(digit));
                       });
    return isMac ? QByteArray::fromHex(text) : QByteArray();
}

bool isDigit(QChar character)
{
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

/// The numbers and words of a version as bytes in the order of versions. Separators are ignored.
QByteArray versionBytes(const QString &version)
{
    constexpr char numberMark = 1;
    constexpr char wordMark = 2;
    constexpr char wordEnd = 0;
    QByteArray bytes;
    const QString text = version.startsWith(QLatin1Char('v'), Qt::CaseInsensitive) ? version.mid(1) : version;
    for (qsizetype position = 0; position < text.size();) {
        const bool isNumber = isDigit(text.at(position));
        qsizetype end = position;
        while (end < text.size() && text.at(end).isLetterOrNumber() && isDigit(text.at(end)) == isNumber)
            ++end;
        QByteArray part = text.mid(position, end - position).toLower().toUtf8();
        position = std::max(end, position + 1);
        if (isNumber) {
            while (part.startsWith('0'))
                part.remove(0, 1);
            bytes.append(numberMark).append(static_cast<char>(part.size())).append(part);
        } else if (!part.isEmpty()) {
            bytes.append(wordMark).append(part).append(wordEnd);
        }
    }
    return bytes;
}

} // namespace

DeviceOrder::DeviceOrder(QString key, OddAddresses oddAddresses)
    : m_key(std::move(key)), m_oddAddresses(oddAddresses),
      // The locale "C" does not support the numeric mode.
      m_collator(QLocale().language() == QLocale::C ? QLocale(QLocale::English) : QLocale())
{
    m_collator.setNumericMode(true);
    m_collator.setCaseSensitivity(Qt::CaseInsensitive);
}

DeviceOrder::SortKey DeviceOrder::sortKey(const QJsonObject &row) const
{
    const QJsonValue value = row.value(m_key);
    const QString text = value.toString();
    SortKey key{.text = m_collator.sortKey(text)};
    if (value.isBool()) {
        key.number = value.toBool() ? 1 : 0;
    } else if (value.isDouble()) {
        key.number = value.toDouble();
    } else if (m_key == DeviceRowKey::ipport) {
        setAddress(key, text);
    } else if (m_key == DeviceRowKey::mac) {
        key.bytes = macBytes(text);
        key.group = key.bytes.isEmpty() ? UnreadableGroup : FirstGroup;
    } else if (m_key == DeviceRowKey::vision) {
        key.bytes = versionBytes(text);
    }
    return key;
}

void DeviceOrder::setAddress(SortKey &key, const QString &ipport) const
{
    const qsizetype colon = std::max<qsizetype>(ipport.lastIndexOf(QLatin1Char(':')), 0);
    const QStringView address = QStringView(ipport).left(colon);
    const std::uint32_t port = QStringView(ipport).mid(colon + 1).toUShort();
    const std::optional<std::uint32_t> ipv4 = ipv4Number(address);
    const bool inBrackets = address.startsWith(u'[') && address.endsWith(u']');
    if (ipv4) {
        appendNumber(key.bytes, *ipv4, 4);
    } else if (const auto ipv6 = ipv6Bytes(inBrackets ? address.mid(1).chopped(1) : address)) {
        key.group = IPv6Group;
        key.bytes.append(reinterpret_cast<const char *>(ipv6->data()), static_cast<qsizetype>(ipv6->size()));
    } else {
        key.group = UnreadableGroup;
    }
    appendNumber(key.bytes, port, 2);
    if (!ipv4 && m_oddAddresses == OddAddresses::AsZero) {
        key.group = FirstGroup;
        key.bytes.prepend(QByteArray(4, 0));
    }
}

int DeviceOrder::compare(const SortKey &left, const SortKey &right)
{
    if (left.group != right.group)
        return left.group < right.group ? -1 : 1;
    if (left.number != right.number)
        return left.number < right.number ? -1 : 1;
    if (const int bytes = left.bytes.compare(right.bytes); bytes != 0)
        return bytes;
    return left.text.compare(right.text);
}

QVariantList DeviceOrder::ordered(const QVariantList &rows) const
{
    std::vector<std::pair<SortKey, QVariant>> keyed;
    keyed.reserve(static_cast<std::size_t>(rows.size()));
    for (const QVariant &row : rows)
        keyed.emplace_back(sortKey(row.toJsonObject()), row);
    std::stable_sort(keyed.begin(), keyed.end(), [](const auto &left, const auto &right) {
        return compare(left.first, right.first) < 0;
    });
    QVariantList sorted;
    sorted.reserve(rows.size());
    for (const auto &[key, row] : keyed)
        sorted.append(row);
    return sorted;
}

bool DeviceOrder::isGroupBefore(const QString &left, const QString &right)
{
    return std::pair(groupRank(left), left) < std::pair(groupRank(right), right);
}
