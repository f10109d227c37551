// Between the numbers of a device's range and the percentages of the pages.
#pragma once

#include "sdk/onvif/services/imagingservice.h"

namespace sdk::onvif {

/// 0 to 100 for a value of the range; 0 for a range that cannot be used.
[[nodiscard]] int percentOf(double value, const ImagingRange &range);

/// The value of the range at a percentage.
[[nodiscard]] double valueAt(int percent, const ImagingRange &range);

/// The value for a percentage that a page gives back: the device's own one if the percentage is unchanged,
/// since it may be finer.
[[nodiscard]] double valueFor(int percent, double current, const ImagingRange &range);

} // namespace sdk::onvif
