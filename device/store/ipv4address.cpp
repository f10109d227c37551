#include "device/store/ipv4address.h"

#include <QList>

std::optional<std::uint32_t> ipv4Number(QStringView text)
{
    std::uint32_t address = 0;
    int octets = 0;
    for (const QStringView part : text.split(QLatin1Char('.'))) {
        if (++octets > 4 || part.isEmpty() || part.size() > 3)
            return std::nullopt;
        std::uint32_t octet = 0;
        for (const QChar digit : part) {
            if (digit < QLatin1Char('0') || digit > QLatin1Char('9'))
                return std::nullopt;
            octet = octet * 10 + (digit.unicode() - u'0');
        }
        if (octet > 255)
            return std::nullopt;
        address = address << 8 | octet;
    }
    return octets == 4 ? std::optional(address) : std::nullopt;
}

QString ipv4Text(std::uint32_t address)
{
    return QStringLiteral("%1.%2.%3.%4")
        .arg(ipv4Octet(address, 0))
        .arg(ipv4Octet(address, 1))
        .arg(ipv4Octet(address, 2))
        .arg(ipv4Octet(address, 3));
}
