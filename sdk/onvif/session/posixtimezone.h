// Time zones as POSIX strings: "CST-8", "CET-1CEST,M3.5.0/2,M10.5.0/3".
#pragma once

#include "sdk/onvif/services/deviceservice.h"
#include "sdk/systemrecords.h"

#include <optional>
#include <string>
#include <string_view>

namespace sdk::onvif {

/// A zone by IEEE Std 1003.1, section 8.3. Devices report and accept zones in this form.
struct PosixTimeZone
{
    std::string name = {};          ///< of standard time
    int offset = 0;                 ///< minutes that local standard time is ahead of UTC
    std::string daylightName = {};  ///< empty for a zone without daylight saving
    int daylightOffset = 0;         ///< minutes ahead of UTC
    DaylightSavingPoint begin = {}; ///< of daylight saving, in standard time
    DaylightSavingPoint end = {};   ///< of daylight saving, in daylight saving time

    [[nodiscard]] bool hasDaylightSaving() const { return !daylightName.empty(); }

    /// The POSIX string. Names with characters other than letters are quoted: "<+08>-8". The string has no
    /// form for a switch on a day of the month (DaylightSavingPoint::byDate): the 8th to the 14th, for
    /// instance, become the second Sunday. Nothing is checked: values outside their ranges give an invalid
    /// string.
    [[nodiscard]] std::string text() const;

    /// The minutes that local time is ahead of UTC at a valid local standard time, with daylight saving.
    [[nodiscard]] int offsetAt(const DateTime &standardTime) const;
};

/// Reads a POSIX string. Nothing if the name or the offset of standard time is invalid. A zone whose rule of
/// daylight saving is missing, invalid or in days of the year ("J60", "59") is read without daylight saving.
/// A switch at a time outside 0:00 to 23:59 is read as 2:00.
[[nodiscard]] std::optional<PosixTimeZone> readPosixTimeZone(std::string_view text);

} // namespace sdk::onvif
