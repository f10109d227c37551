#include "sdk/onvif/mapping/timezonenumbers.h"

#include "sdk/systemrecords.h"

#include <algorithm>
#include <array>

namespace sdk::onvif {

namespace {

constexpr int hours(int count, int minutes = 0)
{
    return count * 60 + (count < 0 ? -minutes : minutes);
}

/// The last seven are not sorted: the numbers were assigned in the order in which zones became known.
constexpr std::array offsets = {
    0,         hours(1),      hours(2),      hours(3),     hours(3, 30),  hours(4),      hours(4, 30),
    hours(5),  hours(5, 30),  hours(5, 45),  hours(6),     hours(6, 30),  hours(7),      hours(8),
    hours(9),  hours(9, 30),  hours(10),     hours(11),    hours(12),     hours(13),     hours(-1),
    hours(-2), hours(-3),     hours(-3, 30), hours(-4),    hours(-5),     hours(-6),     hours(-7),
    hours(-8), hours(-9),     hours(-10),    hours(-11),   hours(-12),    hours(-4, 30), hours(10, 30),
    hours(14), hours(-9, 30), hours(8, 30),  hours(8, 45), hours(12, 45),
};
static_assert(offsets.size() == NtpRecord::timeZones);

} // namespace

int timeZoneOffset(int number)
{
    return number >= 0 && number < static_cast<int>(offsets.size())
               ? offsets[static_cast<std::size_t>(number)]
               : 0;
}

int timeZoneNumber(int minutesAhead)
{
    const auto *const found = std::find(offsets.begin(), offsets.end(), minutesAhead);
    return found == offsets.end() ? -1 : static_cast<int>(found - offsets.begin());
}

} // namespace sdk::onvif
