// The clock and the time server of a device. The functions with a ServiceResult are the operations of the
// device service with the same names: each reads the request of `call`, and fills its response or returns a
// fault.
#pragma once

#include "site/services/servicecall.h"

namespace site {

/// The time of a device as UTC, in ms since 1970. The clock of a device runs ahead of the site's clock by a
/// constant and shows the local time of the device's zone. `now` is the time on the site's clock, in ms since
/// 1970.
[[nodiscard]] std::int64_t utcOf(const sdk::demo::SceneDevice &device, std::int64_t now);

ServiceResult getSystemDateAndTime(ServiceCall &call);
/// Stores the zone (kept if it is missing in the request), the switch of daylight saving (off if it is
/// missing), and whether the clock follows NTP. The UTC time is set only with the type "Manual" and a time in
/// the request; otherwise it is kept. An unknown type, an invalid time or an invalid zone changes nothing.
ServiceResult setSystemDateAndTime(ServiceCall &call);
ServiceResult getNtp(ServiceCall &call);
/// Stores whether the server comes from DHCP, and the server of the request otherwise. The clock of the
/// device is not changed.
ServiceResult setNtp(ServiceCall &call);

} // namespace site
