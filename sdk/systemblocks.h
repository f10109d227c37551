// Blocks of the maintenance of a device: its clock, its video standard, a reset to factory settings and a new
// password. A block is a struct that is passed to or filled by the network library.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace sdk {

/// Settings that NetSetDeviceSetting writes, with their blocks.
enum class DeviceSetting : std::uint32_t
{
    Time = 8, ///< TimeRecord
};

/// The date and time that a device's clock shows: the local time of the device. Read by QueryCommand::Time,
/// written by DeviceSetting::Time.
struct TimeRecord
{
    std::uint32_t year;
    std::uint32_t month;  ///< 1 to 12
    std::uint32_t day;    ///< 1 to 31
    std::uint32_t hour;   ///< 0 to 23
    std::uint32_t minute; ///< 0 to 59
    std::uint32_t second; ///< 0 to 59
};
static_assert(sizeof(TimeRecord) == 24);

/// The item number of VideoStandardItem for NetSetItem. NetGetItem does not read it.
inline constexpr std::uint32_t videoStandardItem = 11;

/// The television standard of the device's video: 25 (PAL) or 30 (NTSC) frames per second.
enum class VideoStandard : std::int32_t
{
    Pal = 1,
    Ntsc = 2,
};

/// The block of the item number videoStandardItem.
struct VideoStandardItem
{
    std::uint32_t size; ///< sizeof(VideoStandardItem)
    VideoStandard standard;
};
static_assert(sizeof(VideoStandardItem) == 8);

/// Given to NetResetSystem. The request has no parameters.
struct ResetSystemInput
{
    std::uint32_t size; ///< sizeof(ResetSystemInput)
};
static_assert(sizeof(ResetSystemInput) == 4);

/// Given to NetResetSystem. The response has no content.
struct ResetSystemOutput
{
    std::uint32_t size; ///< sizeof(ResetSystemOutput), set by the caller
};
static_assert(sizeof(ResetSystemOutput) == 4);

/// Given to NetModifyPassword: the account whose password changes, and both passwords. The fields are as long
/// as those of LoginSecureInput. Strings are 8-bit, in the local encoding; one that fills its field does not
/// end with a zero.
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
