#include "device/search/searchrange.h"

#include "device/store/ipv4address.h"
#include "sdk/blocktext.h"

#include <algorithm>

SearchRangeError searchRangeError(QStringView begin, QStringView end)
{
    const std::optional<std::uint32_t> first = ipv4Number(begin);
    if (!first)
        return SearchRangeError::BeginIsNoAddress;
    const std::optional<std::uint32_t> last = ipv4Number(end);
    if (!last)
        return SearchRangeError::EndIsNoAddress;
    if (*first > *last)
        return SearchRangeError::BeginAboveEnd;
    const bool samePrefix = *first >> 16 == *last >> 16;
    if (!samePrefix || ipv4Octet(*last, 2) - ipv4Octet(*first, 2) > maximumSegmentDistance)
        return SearchRangeError::TooManySegments;
    return SearchRangeError::None;
}

std::vector<sdk::SearchByAddressesRequest> searchRequests(const SearchRange &range)
{
    std::vector<sdk::SearchByAddressesRequest> requests;
    if (range.begin == 0 || range.end == 0 || ipv4Octet(range.end, 2) < ipv4Octet(range.begin, 2))
        return requests;

    const std::uint32_t blocks = ipv4Octet(range.end, 2) - ipv4Octet(range.begin, 2) + 1;
    std::uint32_t first = range.begin;
    for (std::uint32_t block = 0; block < blocks; ++block) {
        const std::uint32_t last = std::min(first | 0xFFU, range.end);
        if (last < first)
            break; // octet 4 of the end is less than that of the begin in the same block
        sdk::SearchByAddressesRequest &request = requests.emplace_back();
        request.size = sizeof(request);
        request.count = static_cast<std::int32_t>(last - first + 1);
        for (std::uint32_t offset = 0; offset <= last - first; ++offset)
            sdk::setBlockText(request.addresses[offset], ipv4Text(first + offset).toStdString());
        first = last + 1;
    }
    return requests;
}
