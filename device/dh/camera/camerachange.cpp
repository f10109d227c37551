#include "device/dh/camera/camerachange.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double longestShutter = 100000; // in milliseconds

} // namespace

bool CameraChange::number(sdk::ValueRange range, std::int32_t &field) const
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (!isNumber || std::isnan(number))
        return false;
    field = static_cast<std::int32_t>(std::lround(qBound<double>(range.minimum, number, range.maximum)));
    return true;
}

bool CameraChange::slider(sdk::ValueRange reported, std::int32_t &field) const
{
    return number(usableRange(reported), field);
}

bool CameraChange::choice(const OfferedValues &offered, std::int32_t &field) const
{
    bool isNumber = false;
    const std::optional<int> chosen = offered.valueAt(value.toInt(&isNumber));
    if (!isNumber || !chosen)
        return false;
    field = *chosen;
    return true;
}

bool CameraChange::oneOf(std::span<const int> numbers, std::int32_t &field) const
{
    bool isNumber = false;
    const int number = value.toInt(&isNumber);
    if (!isNumber || std::find(numbers.begin(), numbers.end(), number) == numbers.end())
        return false;
    field = number;
    return true;
}

bool CameraChange::shutter(float &field) const
{
    bool isNumber = false;
    const double milliseconds = value.toDouble(&isNumber);
    if (!isNumber || !(milliseconds >= 0 && milliseconds <= longestShutter))
        return false;
    field = static_cast<float>(milliseconds);
    return true;
}
