// The address range of a search outside the local segment.
#pragma once

#include "sdk/searchblocks.h"

#include <QStringView>

#include <cstdint>
#include <vector>

/// First and last address in host byte order (see ipv4Number()), both included. Zero in either means that no
/// range is set.
struct SearchRange
{
    std::uint32_t begin = 0;
    std::uint32_t end = 0;
};

/// Error of a range that the user entered. QML selects the message by the number.
enum class SearchRangeError
{
    None = 0,
    BeginAboveEnd = 1,
    /// Octet 1 or 2 of the bounds differs, or octets 3 differ by more than maximumSegmentDistance.
    TooManySegments = 2,
    BeginIsNoAddress = 3,
    EndIsNoAddress = 4,
};

/// Maximum difference between the third octets of end and begin. 16 means that a range has at most 17
/// segments (/24 blocks).
inline constexpr int maximumSegmentDistance = 16;

/// Checks the bounds of a range, two dotted IPv4 addresses. Of several errors, the first in this order is
/// returned: an invalid begin, an invalid end, the wrong order, too many segments.
[[nodiscard]] SearchRangeError searchRangeError(QStringView begin, QStringView end);

/// The requests for a range, one for each /24 block, with all of its addresses that are in the range (up to
/// 256). Empty if a bound is zero or the end is below the begin in its last two octets. Octets 1 and 2 are
/// not compared: the range must have passed searchRangeError().
[[nodiscard]] std::vector<sdk::SearchByAddressesRequest> searchRequests(const SearchRange &range);
