#pragma once

#include <QString>

/// "UTC+08:00" for an offset from UTC in seconds. The minus sign of a western offset is part of its hours, in
/// a field of two places, so "UTC-5:00" has no zero in front.
[[nodiscard]] QString timeZoneText(int offsetFromUtc);

/// The text for the computer's time zone at this moment.
[[nodiscard]] QString systemTimeZoneText();
