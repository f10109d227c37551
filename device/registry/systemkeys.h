// Commands of the system page, and the keys of their data.
#pragma once

#include <QString>

/// Commands of CDeviceBase::systemConfig() and systemStep(). The comment of a command names its data;
/// dstConfig, ntpConfig, autoMaintain and videoStandard have the keys under their names in SystemDataKey.
namespace SystemCommand {
inline constexpr QLatin1StringView setTimeByPC("setTimeByPC");         ///< SystemDataKey::time
inline constexpr QLatin1StringView setTimeByManual("setTimeByManual"); ///< SystemDataKey::time
inline constexpr QLatin1StringView dstConfig("dstConfig");
inline constexpr QLatin1StringView ntpConfig("ntpConfig");
inline constexpr QLatin1StringView autoMaintain("autoMaintain");
inline constexpr QLatin1StringView rebootDevice("rebootDevice"); ///< without data
inline constexpr QLatin1StringView resetSystem("resetSystem");   ///< to factory settings; without data
inline constexpr QLatin1StringView videoStandard("videoStandard");
inline constexpr QLatin1StringView channelName("channelName"); ///< SystemDataKey::name, of the first channel
/// SystemDataKey::password: the old one. Logs in and keeps the login for modifyPassword; the result is then
/// -1 instead of 0.
inline constexpr QLatin1StringView loginCheck("loginCheck");
/// SystemDataKey::password: the new one. Only for devices whose loginCheck has succeeded.
inline constexpr QLatin1StringView modifyPassword("modifyPassword");
inline constexpr QLatin1StringView
    cancelLogin("cancelLogin"); ///< ends all logins of loginCheck; without data
inline constexpr QLatin1StringView
    readTime("readTime"); ///< without data; the clock is in the text of the outcome of systemStep()
} // namespace SystemCommand

/// Keys of the data of the commands. Values are strings unless stated otherwise.
namespace SystemDataKey {
inline constexpr QLatin1StringView time("time"); ///< "yyyy-MM-dd HH:mm:ss"; of autoMaintain "hh:mm"
/// Bool, of setTimeByPC. True: each device gets the host's time at its request, and `time` is ignored.
inline constexpr QLatin1StringView timeOfRequest("timeOfRequest");
inline constexpr QLatin1StringView password("password");
inline constexpr QLatin1StringView name("name"); ///< of channelName

// dstConfig. Its start and its end have keys with the prefixes `start` and `end`.
inline constexpr QLatin1StringView dstEnable("dstEnable"); ///< bool
inline constexpr QLatin1StringView dstMode("dstMode");     ///< int: 0 by date, 1 by week
inline constexpr QLatin1StringView start("start");
inline constexpr QLatin1StringView end("end");
inline constexpr QLatin1StringView pointMonth("Month"); ///< int: 1 to 12
inline constexpr QLatin1StringView pointDay("Day");     ///< int, by date: 0 to 30 for the days 1 to 31
/// Int, by week: 0 the first to 3 the fourth, 4 the last.
inline constexpr QLatin1StringView pointWeek("Week");
inline constexpr QLatin1StringView pointWeekDay("WeekDay"); ///< int, by week: 0 Sunday to 6 Saturday
inline constexpr QLatin1StringView pointTime("Time");       ///< "hh:mm"

// ntpConfig
inline constexpr QLatin1StringView timeZone("timeZone"); ///< int: index in the time zones of devices
inline constexpr QLatin1StringView ntpSet("ntpSet");     ///< bool
inline constexpr QLatin1StringView ntpServer("ntpServer");
inline constexpr QLatin1StringView ntpPort("ntpPort");           ///< int: 0 to 65535
inline constexpr QLatin1StringView updatePeriod("updatePeriod"); ///< int: minutes, 0 to 65535

// autoMaintain
inline constexpr QLatin1StringView week("week");             ///< int: 0 Sunday to 6 Saturday, 7 every day
inline constexpr QLatin1StringView autoReboot("autoReboot"); ///< bool

inline constexpr QLatin1StringView videoStandard("videoStandard"); ///< int: 1 PAL, 2 NTSC
} // namespace SystemDataKey
