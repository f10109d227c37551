// Conversion between values of a device's range and percentages of the pages.
#pragma once

#include "sdk/onvif/services/imagingservice.h"

namespace sdk::onvif {

/// The percentage, 0 to 100, of a value of the range; 0 for an unusable range.
[[nodiscard]] int percentOf(double value, const ImagingRange &range);

/// The value of the range at a percentage.
[[nodiscard]] double valueAt(int percent, const ImagingRange &range);

/// The value for a percentage from a page: `current` if the percentage is unchanged, since the device's value
/// may be more precise than a percentage.
[[nodiscard]] double valueFor(int percent, double current, const ImagingRange &range);

} // namespace sdk::onvif
