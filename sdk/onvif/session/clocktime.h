// The clock of a device: its time in UTC and in its zone.
#pragma once

#include "sdk/onvif/services/deviceservice.h"
#include "sdk/systemblocks.h"

#include <chrono>
#include <optional>

namespace sdk::onvif {

/// `utc` of a device minus the clock of this host.
[[nodiscard]] std::chrono::milliseconds clockOffset(const DateTime &utc);

/// The local date and time of the device: the reported one, otherwise UTC in its zone. UTC itself for an
/// unknown zone; nothing if the device reports no time.
[[nodiscard]] std::optional<DateTime> shownTime(const DeviceClock &clock);

/// The UTC time at which a device of this zone shows `shown`. Without a known zone, the difference between
/// the device's local time and UTC is used.
[[nodiscard]] DateTime utcOfShown(const DateTime &shown, const DeviceClock &clock);

[[nodiscard]] TimeRecord timeRecord(const DateTime &time);
[[nodiscard]] DateTime dateTimeOf(const TimeRecord &record);

} // namespace sdk::onvif
