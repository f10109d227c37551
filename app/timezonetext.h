#pragma once

#include <QString>

/// "UTC+08:00" for an offset from UTC in seconds; seconds below a minute are dropped. The sign of a negative
/// offset counts as a digit of the hours, so "UTC-5:00" has no leading zero.
[[nodiscard]] QString timeZoneText(int offsetFromUtc);

/// timeZoneText() of the current offset of the host's time zone, including daylight saving time.
[[nodiscard]] QString systemTimeZoneText();
