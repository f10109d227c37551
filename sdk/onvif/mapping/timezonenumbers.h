// The time zone numbers of devices: NtpRecord::timeZone. They are not in the order of the offsets from UTC.
#pragma once

namespace sdk::onvif {

/// The minutes that the time zone `number` is ahead of UTC, without daylight saving; negative for a zone
/// behind UTC. Numbers are 0 to NtpRecord::timeZones - 1 (39); any other number gives 0.
[[nodiscard]] int timeZoneOffset(int number);

/// The number of the zone that is `minutesAhead` of UTC; -1 if no zone has this offset.
[[nodiscard]] int timeZoneNumber(int minutesAhead);

} // namespace sdk::onvif
