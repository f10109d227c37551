#include "sdk/onvif/mapping/imagingscale.h"

#include <algorithm>
#include <cmath>

namespace sdk::onvif {

namespace {

constexpr int fullPercent = 100;

} // namespace

int percentOf(double value, const ImagingRange &range)
{
    if (!range.isUsable())
        return 0;
    const double share = (value - range.minimum) / (range.maximum - range.minimum);
    return static_cast<int>(std::lround(std::clamp(share, 0.0, 1.0) * fullPercent));
}

double valueAt(int percent, const ImagingRange &range)
{
    const double share = static_cast<double>(std::clamp(percent, 0, fullPercent)) / fullPercent;
    return range.minimum + share * (range.maximum - range.minimum);
}

double valueFor(int percent, double current, const ImagingRange &range)
{
    return percent == percentOf(current, range) ? current : valueAt(percent, range);
}

} // namespace sdk::onvif
