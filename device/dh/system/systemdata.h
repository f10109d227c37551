// Converts the data of system commands, which QML provides, to records. Each function returns nullopt if a
// key is missing or a value is invalid or out of range. Numbers may be given as text.
#pragma once

#include "sdk/camerablocks.h"
#include "sdk/systemblocks.h"
#include "sdk/systemrecords.h"

#include <QVariantMap>

#include <optional>

/// "time": "yyyy-MM-dd HH:mm:ss".
[[nodiscard]] std::optional<sdk::TimeRecord> timeFrom(const QVariantMap &data);

/// Daylight saving rule.
struct DaylightSaving
{
    bool enabled = false;
    sdk::DaylightSavingPoint begin;
    sdk::DaylightSavingPoint end;
};

/// Keys: "dstEnable" (bool), "dstMode" (0 by date, 1 by week), and with the prefixes "start" and "end":
/// "Month" (1 to 12), "Day" (by date: 0 to 30 for the days 1 to 31), "Week" (by week: 0 first to 3 fourth, 4
/// last), "WeekDay" (by week: 0 Sunday to 6 Saturday) and "Time" ("hh:mm"). The keys of the other mode are
/// not read. Start and end must be valid even if "dstEnable" is false.
[[nodiscard]] std::optional<DaylightSaving> daylightSavingFrom(const QVariantMap &data);

/// Keys: "timeZone" (index in the devices' time zones, 0 to 39), "ntpSet" (bool: the device uses the
/// server), "ntpServer" (may be empty; invalid if it is too long for the record), "ntpPort" (0 to 65535) and
/// "updatePeriod" (minutes, 0 to 65535).
[[nodiscard]] std::optional<sdk::NtpRecord> ntpFrom(const QVariantMap &data);

/// Keys: "week" (0 Sunday to 6 Saturday, 7 every day), "time" ("hh:mm") and "autoReboot" (bool). "week" and
/// "time" must be valid even if "autoReboot" is false.
[[nodiscard]] std::optional<sdk::AutoMaintainRecord> autoMaintainFrom(const QVariantMap &data);

/// Key: "name" of a channel. Invisible characters and surrounding spaces are removed. The rest must have 1 to
/// ByteText::channelNameBytes() bytes in UTF-8; it is not truncated.
[[nodiscard]] std::optional<sdk::ChannelNameItem> channelNameFrom(const QVariantMap &data);

/// Key: "videoStandard": 1 PAL, 2 NTSC.
[[nodiscard]] std::optional<sdk::VideoStandardItem> videoStandardFrom(const QVariantMap &data);
