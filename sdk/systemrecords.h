// Records of the configurations that the maintenance of a device reads and writes.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace sdk {

/// When daylight saving time begins or ends, in every year.
struct DaylightSavingPoint
{
    static constexpr std::int32_t byDate = 0;    ///< `week` of a point that is a day of the month
    static constexpr std::int32_t lastWeek = -1; ///< `week`: the last one of the month

    std::int32_t month; ///< 1 to 12, 0 while it was never set
    std::int32_t week;  ///< byDate, 1 to 4, or lastWeek
    std::int32_t day;   ///< by date the day of the month, else the weekday: 0 Sunday to 6 Saturday
    std::int32_t hour;
    std::int32_t minute;
};
static_assert(sizeof(DaylightSavingPoint) == 20);

/// "Locales": how the device writes times, and its daylight saving.
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

/// "NTP": where the device fetches the time from.
struct NtpRecord
{
    static constexpr std::int32_t timeZones = 40; ///< devices number so many

    std::uint32_t size;
    std::int32_t enabled; ///< 0 or 1
    std::array<char, 256> address;
    std::int32_t port;
    std::int32_t updatePeriod; ///< in minutes
    std::int32_t timeZone;     ///< in the numbering of devices, which is not in the order of the offsets
    std::array<std::uint8_t, 1188> reserved;
};
static_assert(sizeof(NtpRecord) == 1464);

} // namespace sdk
