// Blocks of the maintenance of a device: its clock, its video standard, a reset and a new password.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace sdk {

/// Settings that NetSetDeviceSetting writes.
enum class DeviceSetting : std::uint32_t
{
    Time = 8, ///< TimeRecord
};

/// The date and time of a device's clock, without a time zone.
struct TimeRecord
{
    std::uint32_t year;
    std::uint32_t month; ///< 1 to 12
    std::uint32_t day;   ///< 1 to 31
    std::uint32_t hour;  ///< 0 to 23
    std::uint32_t minute;
    std::uint32_t second;
};
static_assert(sizeof(TimeRecord) == 24);

/// The number of VideoStandardItem for NetSetItem.
inline constexpr std::uint32_t videoStandardItem = 11;

enum class VideoStandard : std::int32_t
{
    Pal = 1,
    Ntsc = 2,
};

struct VideoStandardItem
{
    std::uint32_t size; ///< sizeof(VideoStandardItem)
    VideoStandard standard;
};
static_assert(sizeof(VideoStandardItem) == 8);

/// Given to NetResetSystem.
struct ResetSystemInput
{
    std::uint32_t size; ///< sizeof(ResetSystemInput)
};
static_assert(sizeof(ResetSystemInput) == 4);

/// Filled by NetResetSystem.
struct ResetSystemOutput
{
    std::uint32_t size; ///< sizeof(ResetSystemOutput), set by the caller
};
static_assert(sizeof(ResetSystemOutput) == 4);

/// Given to NetModifyPassword. The fields are as long as those of a login.
struct ModifyPasswordInput
{
    std::uint32_t size; ///< sizeof(ModifyPasswordInput)
    std::array<char, 64> account;
    std::array<char, 64> oldPassword;
    std::array<char, 64> newPassword;
    std::array<std::uint8_t, 60> reserved;
};
static_assert(sizeof(ModifyPasswordInput) == 256);

} // namespace sdk
