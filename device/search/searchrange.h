// The range of addresses in other segments that a search may ask one by one.
#pragma once

#include "sdk/searchblocks.h"

#include <QStringView>

#include <cstdint>
#include <vector>

/// First and last address, in host order (ipv4Number). A zero in either means that no range is set.
struct SearchRange
{
    std::uint32_t begin = 0;
    std::uint32_t end = 0;
};

/// What is wrong with a range that the user entered. The numbers are those of the messages.
enum class SearchRangeFault
{
    None = 0,
    BeginAboveEnd = 1,
    TooManySegments = 2, ///< other first octets, or more than maximumSegmentDistance between the third ones
    BeginIsNoAddress = 3,
    EndIsNoAddress = 4,
};

/// By how much the third octet of the end may exceed that of the begin. Inclusive: 17 segments are searched.
inline constexpr int maximumSegmentDistance = 16;

/// Checks the texts of a range in the order in which the user is told.
[[nodiscard]] SearchRangeFault searchRangeFault(QStringView begin, QStringView end);

/// The requests that cover a range, one for each /24 block of it. Empty when a bound is zero or the third
/// octet of the end lies below that of the begin. The number of blocks comes from the third octets alone; the
/// first two are not compared, since only ranges that pass searchRangeFault() are asked for.
[[nodiscard]] std::vector<sdk::SearchByAddressesRequest> searchRequests(const SearchRange &range);
