// Time zones as POSIX strings: "CST-8", "CET-1CEST,M3.5.0/2,M10.5.0/3".
#pragma once

#include "sdk/onvif/services/deviceservice.h"
#include "sdk/systemrecords.h"

#include <optional>
#include <string>
#include <string_view>

namespace sdk::onvif {

/// A zone by IEEE Std 1003.1, section 8.3.
struct PosixTimeZone
{
    std::string name = {};          ///< of standard time
    int offset = 0;                 ///< minutes that local standard time is ahead of UTC
    std::string daylightName = {};  ///< empty for a zone without daylight saving
    int daylightOffset = 0;         ///< minutes ahead of UTC
    DaylightSavingPoint begin = {}; ///< in standard time
    DaylightSavingPoint end = {};   ///< in daylight saving time

    [[nodiscard]] bool hasDaylightSaving() const { return !daylightName.empty(); }

    /// The POSIX string. Names with characters other than letters are quoted: "<+08>-8".
    [[nodiscard]] std::string text() const;

    /// Minutes ahead of UTC at a local standard time.
    [[nodiscard]] int offsetAt(const DateTime &standardTime) const;
};

/// Nothing if the name or the offset of standard time is invalid. A zone whose rule is missing, invalid or in
/// days of the year ("J60", "59") is read without daylight saving. A switch at a time outside 0:00 to 23:59
/// is read as 2:00.
[[nodiscard]] std::optional<PosixTimeZone> readPosixTimeZone(std::string_view text);

} // namespace sdk::onvif
