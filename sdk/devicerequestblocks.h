// Blocks of requests to devices that a search has found, without a session: the first account of a
// factory-new device, and a new address of a device. Strings are those of searchblocks.h.
#pragma once

#include "sdk/searchblocks.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace sdk {

/// Given to NetInitDeviceAccount.
struct InitDeviceAccountInput
{
    std::uint32_t size;       ///< sizeof(InitDeviceAccountInput)
    std::array<char, 40> mac; ///< of the device: "02:1a:c5:00:40:17"; empty if its search reported none
    std::array<char, 128> account;
    std::array<char, 128> password;
    std::uint8_t passwordResetWay; ///< as in its search response: bit 0 telephone, bit 1 mail
    std::array<char, 64> address;  ///< current address of the device
    std::uint16_t port;            ///< of its service, 0 if unknown
    std::array<std::uint8_t, 32> reserved;
};
static_assert(sizeof(InitDeviceAccountInput) == 400);

/// Given to NetInitDeviceAccount and NetModifyDeviceBySearch. The response of the device has no content.
struct DeviceRequestOutput
{
    std::uint32_t size; ///< sizeof(DeviceRequestOutput), set by the caller
};
static_assert(sizeof(DeviceRequestOutput) == 4);

/// Given to NetModifyDeviceBySearch: the device's information from its search response, with these changes.
/// `address`, `subnetMask`, `gateway` and `dhcpEnabled` are the new ones (the first three have no effect with
/// DHCP; depending on the implementation, an empty `subnetMask` or `gateway` keeps the present one);
/// `currentAddress` is the present address; `account` and `password` are those of an account that may change
/// it.
struct ModifyDeviceInput
{
    std::uint32_t size; ///< sizeof(ModifyDeviceInput)
    SearchDeviceInformation device;
};
static_assert(sizeof(ModifyDeviceInput) == 3236);
static_assert(offsetof(ModifyDeviceInput, device) == 4);

} // namespace sdk
