#include "sdk/demo/scene/addresstext.h"

#include <QStringList>

#include <array>
#include <cstdint>
#include <optional>

#include <arpa/inet.h>

namespace sdk::demo {

namespace {

std::optional<std::uint32_t> parsedIpv4(const QString &text)
{
    in_addr address = {};
    if (inet_pton(AF_INET, text.toLatin1().constData(), &address) != 1)
        return std::nullopt;
    return ntohl(address.s_addr);
}

} // namespace

bool isIpv4Address(const QString &text)
{
    return parsedIpv4(text).has_value();
}

bool isIpv4Mask(const QString &text)
{
    const std::optional<std::uint32_t> mask = parsedIpv4(text);
    // The inverted mask is one less than a power of two.
    return mask && (~*mask & (~*mask + 1)) == 0;
}

QString canonicalIpv6Address(const QString &text)
{
    in6_addr address = {};
    if (inet_pton(AF_INET6, text.toLatin1().constData(), &address) != 1)
        return QString();
    std::array<char, INET6_ADDRSTRLEN> canonical = {};
    if (!inet_ntop(AF_INET6, &address, canonical.data(), canonical.size()))
        return QString();
    return QString::fromLatin1(canonical.data());
}

QString canonicalMac(const QString &text)
{
    constexpr qsizetype length = 17;
    if (text.size() != length)
        return QString();
    for (qsizetype index = 0; index < length; ++index) {
        const char16_t character = text[index].toLower().unicode();
        const bool isHexadecimal =
            (character >= u'0' && character <= u'9') || (character >= u'a' && character <= u'f');
        if (index % 3 == 2 ? character != u':' : !isHexadecimal)
            return QString();
    }
    return text.toLower();
}

} // namespace sdk::demo
