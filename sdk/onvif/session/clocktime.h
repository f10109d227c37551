// The clock of a device: its time in UTC and in its zone.
#pragma once

#include "sdk/onvif/services/deviceservice.h"
#include "sdk/systemblocks.h"

#include <chrono>
#include <optional>

namespace sdk::onvif {

/// `utc` of a device minus the clock of this host.
[[nodiscard]] std::chrono::milliseconds clockOffset(const DateTime &utc);

/// The local date and time of the device: the reported one, otherwise computed from its zone.
[[nodiscard]] std::optional<DateTime> shownTime(const DeviceClock &clock);

/// The UTC time at which a device of this zone shows `shown`.
[[nodiscard]] DateTime utcOfShown(const DateTime &shown, const DeviceClock &clock);

[[nodiscard]] TimeRecord timeRecord(const DateTime &time);
[[nodiscard]] DateTime dateTimeOf(const TimeRecord &record);

} // namespace sdk::onvif
