#include "device/deviceorder.h"

#include "device/devicerow.h"
#include "device/ipv4address.h"

#include <optional>
#include <utility>

namespace {

/// Address and port as one number that orders them; nothing for text that is no IPv4 address with a port.
std::optional<double> addressAndPortNumber(const QString &ipport)
{
    const qsizetype colon = ipport.lastIndexOf(QLatin1Char(':'));
    const std::optional<std::uint32_t> address = ipv4Number(QStringView(ipport).left(colon));
    if (colon < 0 || !address)
        return std::nullopt;
    constexpr double ports = 65536;
    return *address * ports + QStringView(ipport).mid(colon + 1).toUInt();
}

} // namespace

DeviceOrder::DeviceOrder(QString key, OddAddresses oddAddresses)
    : m_key(std::move(key)), m_oddAddresses(oddAddresses),
      // The "C" language knows no numbers in texts.
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
        const std::optional<double> number = addressAndPortNumber(text);
        key.behind = !number && m_oddAddresses == OddAddresses::Behind;
        key.number = number.value_or(0);
    }
    return key;
}

int DeviceOrder::compare(const SortKey &left, const SortKey &right)
{
    if (left.behind != right.behind)
        return left.behind ? 1 : -1;
    if (left.number != right.number)
        return left.number < right.number ? -1 : 1;
    return left.text.compare(right.text);
}
