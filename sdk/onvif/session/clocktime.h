// The clock of a device: its time in UTC and in its zone.
#pragma once

#include "sdk/onvif/services/deviceservice.h"
#include "sdk/systemblocks.h"

#include <chrono>
#include <optional>

namespace sdk::onvif {

/// `utc`, which a device has just reported, minus the present time of this host: positive if the device's
/// clock is ahead.
[[nodiscard]] std::chrono::milliseconds clockOffset(const DateTime &utc);

/// The local date and time of the device. If the device does not report it, its UTC time is converted to its
/// zone. An unreadable zone counts as UTC. Nothing if the device reports neither time.
[[nodiscard]] std::optional<DateTime> shownTime(const DeviceClock &clock);

/// The UTC time at which a device with the zone of `clock` shows the local time `shown`, which is valid. For
/// an unreadable zone, the offset is the difference between the local and the UTC time of `clock`; 0 if one
/// is missing.
[[nodiscard]] DateTime utcOfShown(const DateTime &shown, const DeviceClock &clock);

// Conversion of the same date and time between two structures. A number above 9999 becomes 9999, which
// DateTime::isValid() refuses.

[[nodiscard]] TimeRecord timeRecord(const DateTime &time);
[[nodiscard]] DateTime dateTimeOf(const TimeRecord &record);

} // namespace sdk::onvif
