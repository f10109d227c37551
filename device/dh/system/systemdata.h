// The data of a system configuration command, as records. The scene builds the data; what does not make a
// whole record in its ranges (a missing key, a text that is no time, a port above 65535) gives none.
#pragma once

#include "sdk/camerablocks.h"
#include "sdk/systemblocks.h"
#include "sdk/systemrecords.h"

#include <QVariantMap>

#include <optional>

/// "time": "yyyy-MM-dd HH:mm:ss".
[[nodiscard]] std::optional<sdk::TimeRecord> timeFrom(const QVariantMap &data);

/// When daylight saving holds.
struct DaylightSaving
{
    bool enabled = false;
    sdk::DaylightSavingPoint begin;
    sdk::DaylightSavingPoint end;
};

/// "dstEnable", "dstMode" (0 by date, 1 by week), and for the begin and the end ("start…", "end…") "Month" (1
/// to 12), "Day" (by date: index in the days of the month), "Week" (by week: 0 the first to 3 the fourth, 4
/// the last), "WeekDay" (by week: 0 Sunday to 6 Saturday) and "Time" ("hh:mm").
[[nodiscard]] std::optional<DaylightSaving> daylightSavingFrom(const QVariantMap &data);

/// "timeZone" (index in the time zones of devices), "ntpSet", "ntpServer", "ntpPort" and "updatePeriod" (0 to
/// 65535).
[[nodiscard]] std::optional<sdk::NtpRecord> ntpFrom(const QVariantMap &data);

/// "week" (0 Sunday to 6 Saturday, 7 every day), "time" ("hh:mm") and "autoReboot".
[[nodiscard]] std::optional<sdk::AutoMaintainRecord> autoMaintainFrom(const QVariantMap &data);

/// "name" of a channel, not longer than a device can hold and with more than blanks in it.
[[nodiscard]] std::optional<sdk::ChannelNameItem> channelNameFrom(const QVariantMap &data);

/// "videoStandard": 1 PAL, 2 NTSC.
[[nodiscard]] std::optional<sdk::VideoStandardItem> videoStandardFrom(const QVariantMap &data);
