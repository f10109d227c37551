// The address range of a search outside the local segment.
#pragma once

#include "sdk/searchblocks.h"

#include <QStringView>

#include <cstdint>
#include <vector>

/// First and last address in host byte order (see ipv4Number()). Zero in either means that no range is set.
struct SearchRange
{
    std::uint32_t begin = 0;
    std::uint32_t end = 0;
};

/// Error of a range that the user entered. The numbers select the messages in QML.
enum class SearchRangeError
{
    None = 0,
    BeginAboveEnd = 1,
    TooManySegments = 2, ///< different octet 1 or 2, or octets 3 differ by more than maximumSegmentDistance
    BeginIsNoAddress = 3,
    EndIsNoAddress = 4,
};

/// Maximum difference between the third octets of end and begin; 16 means 17 segments.
inline constexpr int maximumSegmentDistance = 16;

/// Checks the bounds of a range, two dotted IPv4 addresses. Returns the first error: an invalid begin, an
/// invalid end, the wrong order, too many segments.
[[nodiscard]] SearchRangeError searchRangeError(QStringView begin, QStringView end);

/// The requests for a range, one for each /24 block. Empty if a bound is zero or the last two octets of the
/// end are less than those of the begin. Octets 1 and 2 are not compared: the range must have passed
/// searchRangeError().
[[nodiscard]] std::vector<sdk::SearchByAddressesRequest> searchRequests(const SearchRange &range);
