// The clock of a device.
#pragma once

#include "site/services/servicecall.h"

namespace site {

/// UTC of a device, in ms since 1970. The device's clock has the time of its zone. `now` is the time on the
/// site's clock, in ms since 1970.
[[nodiscard]] std::int64_t utcOf(const sdk::demo::SceneDevice &device, std::int64_t now);

ServiceResult getSystemDateAndTime(ServiceCall &call);
ServiceResult setSystemDateAndTime(ServiceCall &call);
ServiceResult getNtp(ServiceCall &call);
ServiceResult setNtp(ServiceCall &call);

} // namespace site
