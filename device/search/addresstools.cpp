#include "device/search/addresstools.h"

#include "device/search/searchrange.h"
#include "device/store/ipv4address.h"

#include <QUrl>

#include <algorithm>

namespace {

bool isOctet(const QString &text)
{
    constexpr qsizetype mostDigits = 3;
    constexpr int largest = 255;
    const auto isDigit = [](QChar character) {
        return character >= QLatin1Char('0') && character <= QLatin1Char('9');
    };
    return !text.isEmpty() && text.size() <= mostDigits && std::ranges::all_of(text, isDigit) &&
           text.toInt() <= largest;
}

} // namespace

bool AddressTools::isLegalAddress(const QString &text) const
{
    return ipv4Number(text).has_value();
}

bool AddressTools::mayBecomeAddress(const QString &text) const
{
    const QStringList octets = text.trimmed().split(QLatin1Char('.'));
    const bool isOpen = octets.constLast().isEmpty();
    return octets.size() <= 4 && std::all_of(octets.cbegin(), octets.cend() - (isOpen ? 1 : 0), isOctet);
}

bool AddressTools::mayBecomeMask(const QString &text) const
{
    const QString wanted = text.trimmed();
    bool isPrefix = isLegalMask(wanted); // accepts leading zeros
    for (int hosts = 1; hosts < 32 && !isPrefix; ++hosts)
        isPrefix = ipv4Text(~((std::uint32_t(1) << hosts) - 1)).startsWith(wanted);
    return isPrefix;
}

double AddressTools::toNumber(const QString &text) const
{
    return ipv4Number(text).value_or(0);
}

bool AddressTools::isLegalMask(const QString &text) const
{
    const std::optional<std::uint32_t> mask = ipv4Number(text);
    return mask && isSubnetMask(*mask);
}

QString AddressTools::gatewayAfterEdit(const QString &before, const QString &after,
                                       const QString &gateway) const
{
    constexpr qsizetype octetCount = 4;
    const QLatin1Char point('.');
    const QStringList old = before.split(point);
    const QStringList now = after.split(point);
    QStringList octets = gateway.isEmpty() ? QStringList() : gateway.split(point);
    // A text that is not an octet is not copied to the gateway.
    const auto mayBeCopied = [](const QString &text) {
        return text.isEmpty() || isOctet(text);
    };
    if (now.size() > octetCount || octets.size() > octetCount || !std::ranges::all_of(now, mayBeCopied))
        return gateway;
    for (qsizetype index = 0; index < now.size(); ++index) {
        const bool last = index == octetCount - 1;
        const bool changed = now.at(index) != old.value(index);
        const QString octet = last && !now.at(index).isEmpty() ? QStringLiteral("1") : now.at(index);
        if (index >= octets.size())
            octets.append(octet);
        else if (changed)
            octets[index] = octet;
    }
    return octets.join(point);
}

QString AddressTools::webPage(const QString &ipport, int webPort, bool encrypted) const
{
    constexpr int plainPort = 80;
    constexpr int encryptedPort = 443;
    constexpr int highestPort = 65535;
    QString host = ipport.section(QLatin1Char(':'), 0, -2);
    if (host.startsWith(QLatin1Char('[')) && host.endsWith(QLatin1Char(']')))
        host = host.sliced(1, host.size() - 2);
    // Host names are refused: a device must not choose where a name leads.
    const bool isAddress = ipv4Number(host) || host.contains(QLatin1Char(':'));
    if (!isAddress || webPort < 1 || webPort > highestPort)
        return {};
    QUrl page;
    encrypted = encrypted || webPort == encryptedPort;
    page.setScheme(encrypted ? QStringLiteral("https") : QStringLiteral("http"));
    page.setHost(host, QUrl::StrictMode);
    if (!page.isValid() || page.host().isEmpty())
        return {};
    if (webPort != (encrypted ? encryptedPort : plainPort))
        page.setPort(webPort);
    return page.toString();
}

QString AddressTools::plainAddress(const QString &text) const
{
    const std::optional<std::uint32_t> address = ipv4Number(text);
    return address ? ipv4Text(*address) : text;
}

AddressTools::RangeError AddressTools::searchRangeError(const QString &begin, const QString &end) const
{
    return static_cast<RangeError>(::searchRangeError(begin, end));
}
