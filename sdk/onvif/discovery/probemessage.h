// Messages of WS-Discovery: what a search sends, and what devices send on it or on their own.
#pragma once

#include "sdk/onvif/soap/serviceaddress.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sdk::onvif {

/// The UDP port and the multicast groups of WS-Discovery (ONVIF Core, section 7.3).
inline constexpr int discoveryPort = 3702;
inline constexpr const char *discoveryGroupIPv4 = "239.255.255.250";
inline constexpr const char *discoveryGroupIPv6 = "ff02::c";

/// The kinds of devices that a probe asks for.
enum class ProbeKind
{
    Transmitters, ///< the type that every camera and recorder has
    Anything,     ///< no type at all: some devices name only a type of their own
};

/// The text of a probe with a new message number.
[[nodiscard]] std::string probeMessage(ProbeKind kind);

/// What a device says about itself. All of it is unchecked: any computer of the network can send it.
struct DeviceAnnouncement
{
    bool isLeaving = false; ///< it is a Bye message
    std::string uuid = {};  ///< the number of the device, without "urn:uuid:", in lower case; may be empty
    std::vector<ServiceAddress> services = {}; ///< where its device service is, by its own view
    std::string name = {};
    std::string model = {};
    std::string location = {};
    std::string mac = {}; ///< "02:1a:c5:00:40:17"; empty if the scopes contain none
    bool isRecorder = false;
};

/// Reads a datagram: the announcements of a ProbeMatches, ResolveMatches, Hello or Bye message, at most
/// `maximumMatches`. Empty if it is none of these, or not of a device of this standard.
inline constexpr std::size_t maximumMatches = 16;
[[nodiscard]] std::vector<DeviceAnnouncement> readAnnouncements(std::string_view datagram);

} // namespace sdk::onvif
