// The properties of a provider: an implementation of the network library. They do not depend on a device.
#pragma once

#include <cstdint>

namespace sdk {

/// Functions that a provider may lack for every device. Bit numbers of ProviderInformation::missingFunctions.
enum class ProviderFunction : std::uint32_t
{
    VideoStandard = 0,    ///< writing the video standard, PAL or NTSC (VideoStandardItem)
    AutomaticMaintenance, ///< reboots at regular times (configuration "AutoMaintain")
    TimeServerDetails,    ///< the port and the period of a time server (NtpRecord::port, updatePeriod)
};

/// Filled by NetGetProviderInformation.
struct ProviderInformation
{
    std::uint32_t size;             ///< sizeof(ProviderInformation), set by the caller
    std::int32_t defaultPort;       ///< service port of most devices
    std::uint32_t missingFunctions; ///< ProviderFunction: bit N is set if the provider lacks the function
    std::uint32_t reserved;
};
static_assert(sizeof(ProviderInformation) == 16);

} // namespace sdk
