// Records of the configurations "Locales", "AutoMaintain" and "NTP".
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace sdk {

/// When daylight saving time begins or ends, in every year.
struct DaylightSavingPoint
{
    static constexpr std::int32_t byDate = 0;    ///< `week`: the point is a day of the month
    static constexpr std::int32_t lastWeek = -1; ///< `week`: the last one of the month

    std::int32_t month; ///< 1 to 12; 0 if never set
    std::int32_t week;  ///< byDate, 1 to 4, or lastWeek
    std::int32_t day;   ///< with byDate the day of the month, otherwise the weekday: 0 Sunday to 6 Saturday
    std::int32_t hour;
    std::int32_t minute;
};
static_assert(sizeof(DaylightSavingPoint) == 20);

/// "Locales": the time format of the device, and its daylight saving.
struct LocalesRecord
{
    std::uint32_t size;
    std::int32_t daylightSavingEnabled; ///< 0 or 1
    DaylightSavingPoint begin;
    DaylightSavingPoint end;
    std::array<char, 32> timeFormat; ///< "yyyy-MM-dd HH:mm:ss"
    std::array<std::uint8_t, 24> reserved;
};
static_assert(sizeof(LocalesRecord) == 104);

/// "AutoMaintain": a reboot at regular times.
struct AutoMaintainRecord
{
    static constexpr std::int32_t everyDay = 7; ///< `rebootDay`
    static constexpr std::int32_t never = -1;   ///< `rebootDay`

    std::uint32_t size;
    std::int32_t rebootDay; ///< 0 Sunday to 6 Saturday, everyDay or never
    std::int32_t rebootHour;
    std::int32_t rebootMinute;
    std::array<std::uint8_t, 24> reserved1;
    std::uint8_t rebootEnabled; ///< 0 or 1
    std::array<std::uint8_t, 3> reserved2;
};
static_assert(sizeof(AutoMaintainRecord) == 44);
static_assert(offsetof(AutoMaintainRecord, rebootEnabled) == 40);

/// "NTP": the time server of the device.
struct NtpRecord
{
    static constexpr std::int32_t timeZones = 40; ///< number of time zones of devices

    std::uint32_t size;
    std::int32_t enabled; ///< 0 or 1
    std::array<char, 256> address;
    std::int32_t port;
    std::int32_t updatePeriod; ///< in minutes
    std::int32_t timeZone;     ///< 0 to timeZones - 1; the numbers are not in the order of the offsets
    std::array<std::uint8_t, 1188> reserved;
};
static_assert(sizeof(NtpRecord) == 1464);

} // namespace sdk
