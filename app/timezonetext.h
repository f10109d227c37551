#pragma once

#include <QString>

/// "UTC+08:00" for an offset from UTC in seconds, positive in the east; seconds below a minute are dropped.
/// Negative offsets have no leading zero: "UTC-5:00", "UTC-10:00". An offset between -1 h and 0, which no
/// present zone has, has no sign: "UTC00:30".
[[nodiscard]] QString timeZoneText(int offsetFromUtc);

/// timeZoneText() of the current offset of the host's time zone, including daylight saving time.
[[nodiscard]] QString systemTimeZoneText();
