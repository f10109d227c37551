// Records of the configurations "Locales", "AutoMaintain" and "NTP" of a device. A record is the struct that
// the configuration library fills from a configuration text. Times are local times of the device. The word
// "size" is the size of the struct. Strings end with a zero.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace sdk {

/// The time in every year at which daylight saving time begins or ends.
struct DaylightSavingPoint
{
    static constexpr std::int32_t byDate = 0;    ///< value of `week`: `day` is a day of the month
    static constexpr std::int32_t lastWeek = -1; ///< value of `week`: the last weekday `day` of the month

    std::int32_t month;  ///< 1 to 12; 0 if never set
    std::int32_t week;   ///< byDate; lastWeek; 1 to 4: the first to fourth weekday `day` of the month
    std::int32_t day;    ///< with byDate 1 to 31, otherwise the weekday: 0 Sunday to 6 Saturday
    std::int32_t hour;   ///< 0 to 23
    std::int32_t minute; ///< 0 to 59
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
    static constexpr std::int32_t everyDay = 7; ///< value of `rebootDay`
    static constexpr std::int32_t never = -1;   ///< value of `rebootDay`, with a `rebootEnabled` of 0

    std::uint32_t size;
    std::int32_t rebootDay;    ///< 0 Sunday to 6 Saturday, everyDay or never
    std::int32_t rebootHour;   ///< 0 to 23
    std::int32_t rebootMinute; ///< 0 to 59
    std::array<std::uint8_t, 24> reserved1;
    std::uint8_t rebootEnabled; ///< 0 or 1
    std::array<std::uint8_t, 3> reserved2;
};
static_assert(sizeof(AutoMaintainRecord) == 44);
static_assert(offsetof(AutoMaintainRecord, rebootEnabled) == 40);

/// "NTP": the time server of the device, and its time zone.
struct NtpRecord
{
    static constexpr std::int32_t timeZones = 40; ///< number of time zones of devices

    std::uint32_t size;
    std::int32_t enabled;          ///< 0 or 1
    std::array<char, 256> address; ///< of the time server; empty if there is none
    std::int32_t port;             ///< of the time server
    std::int32_t updatePeriod;     ///< between requests to the time server, in minutes, up to 65535
    std::int32_t timeZone; ///< number of the device's zone: 0 to timeZones - 1 (0 is UTC); not in the order
                           ///< of the offsets from UTC
    std::array<std::uint8_t, 1188> reserved;
};
static_assert(sizeof(NtpRecord) == 1464);

} // namespace sdk
