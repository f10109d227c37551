#include "device/store/ipv6address.h"

#include "device/store/ipv4address.h"

#include <QList>

#include <algorithm>
#include <vector>

namespace {

using Bytes = std::vector<std::uint8_t>;

void appendNumber(Bytes &bytes, std::uint32_t number, int size)
{
    for (int shift = 8 * (size - 1); shift >= 0; shift -= 8)
        bytes.push_back(static_cast<std::uint8_t>(number >> shift));
}

bool isHexDigit(QChar character)
{
    const char16_t lower = character.toLower().unicode();
    return (lower >= u'0' && lower <= u'9') || (lower >= u'a' && lower <= u'f');
}

/// The bytes of groups separated by single colons. Empty bytes for an empty text. The last group may be an
/// IPv4 address if `atEnd`.
std::optional<Bytes> groupBytes(QStringView text, bool atEnd)
{
    constexpr qsizetype longestGroup = 4;
    Bytes bytes;
    if (text.isEmpty())
        return bytes;
    const QList<QStringView> groups = text.split(u':');
    for (qsizetype index = 0; index < groups.size(); ++index) {
        const QStringView group = groups.at(index);
        if (const auto ipv4 = ipv4Number(group); ipv4 && atEnd && index + 1 == groups.size()) {
            appendNumber(bytes, *ipv4, 4);
            continue;
        }
        bool isNumber = false;
        const ushort number = group.toUShort(&isNumber, 16);
        // The conversion also accepts "+1" and "0x1".
        if (!isNumber || group.size() > longestGroup || !std::ranges::all_of(group, &isHexDigit))
            return std::nullopt;
        appendNumber(bytes, number, 2);
    }
    return bytes;
}

} // namespace

std::optional<std::array<std::uint8_t, 16>> ipv6Bytes(QStringView text)
{
    constexpr QStringView gap = u"::";
    std::array<std::uint8_t, 16> address = {};
    text = text.left(text.indexOf(u'%') < 0 ? text.size() : text.indexOf(u'%'));
    const qsizetype gapPosition = text.indexOf(gap);
    const bool hasGap = gapPosition >= 0;
    const auto head = groupBytes(hasGap ? text.left(gapPosition) : text, !hasGap);
    const auto tail = groupBytes(hasGap ? text.mid(gapPosition + gap.size()) : QStringView(), true);
    if (!head || !tail)
        return std::nullopt;
    const std::size_t size = head->size() + tail->size();
    if (hasGap ? size > address.size() - 2 : size != address.size())
        return std::nullopt;
    std::copy(head->begin(), head->end(), address.begin());
    std::copy_backward(tail->begin(), tail->end(), address.end());
    return address;
}
