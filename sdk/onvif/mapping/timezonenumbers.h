// The time zone numbers of devices.
#pragma once

namespace sdk::onvif {

/// Minutes ahead of UTC of a time zone's number, 0 to NtpRecord::timeZones - 1; 0 for any other number.
[[nodiscard]] int timeZoneOffset(int number);

/// The number of the zone that is `minutesAhead` of UTC; -1 if there is none.
[[nodiscard]] int timeZoneNumber(int minutesAhead);

} // namespace sdk::onvif
