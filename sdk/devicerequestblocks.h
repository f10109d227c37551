// Requests to devices that were found by search and are not logged in to: the first password, and a new
// address.
#pragma once

#include "sdk/searchblocks.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace sdk {

/// Given to NetInitDeviceAccount.
struct InitDeviceAccountInput
{
    std::uint32_t size; ///< sizeof(InitDeviceAccountInput)
    std::array<char, 40> mac;
    std::array<char, 128> account;
    std::array<char, 128> password;
    std::uint8_t passwordResetWay; ///< as in the device's search answer
    std::array<char, 64> address;  ///< where the device answers
    std::uint16_t port;            ///< of its service, 0 if it is not known
    std::array<std::uint8_t, 32> reserved;
};
static_assert(sizeof(InitDeviceAccountInput) == 400);

/// Filled by NetInitDeviceAccount and NetModifyDeviceBySearch.
struct DeviceRequestOutput
{
    std::uint32_t size; ///< sizeof(DeviceRequestOutput), set by the caller
};
static_assert(sizeof(DeviceRequestOutput) == 4);

/// Given to NetModifyDeviceBySearch: the device's own information with the new addresses in it.
struct ModifyDeviceInput
{
    std::uint32_t size; ///< sizeof(ModifyDeviceInput)
    SearchDeviceInformation device;
};
static_assert(sizeof(ModifyDeviceInput) == 3236);
static_assert(offsetof(ModifyDeviceInput, device) == 4);

} // namespace sdk
