// Conversion between values in a device's range and the percentages that the blocks and the pages use.
#pragma once

#include "sdk/onvif/services/imagingservice.h"

namespace sdk::onvif {

/// The rounded percentage of a value: 0 at the minimum of the range, 100 at its maximum. A value outside of
/// the range gives 0 or 100. 0 for an unusable range.
[[nodiscard]] int percentOf(double value, const ImagingRange &range);

/// The value of the range at a percentage, which is limited to 0 to 100.
[[nodiscard]] double valueAt(int percent, const ImagingRange &range);

/// The value to write for a percentage from a page. It is the device's value `current` if that has the same
/// percentage, since it may be more precise than a percentage; otherwise valueAt().
[[nodiscard]] double valueFor(int percent, double current, const ImagingRange &range);

} // namespace sdk::onvif
