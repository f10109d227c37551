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

/// What a datagram contains.
struct DiscoveryMessage
{
    enum class Kind
    {
        Unreadable,   ///< no message of WS-Discovery, or a document beyond the bounds
        Request,      ///< of another program that searches
        Announcement, ///< a ProbeMatches, ResolveMatches, Hello or Bye message
    };

    Kind kind = Kind::Unreadable;
    std::vector<DeviceAnnouncement> announcements = {}; ///< of devices of this standard
    std::size_t otherDevices = 0;                       ///< announcements of other devices
};

/// Reads a datagram, at most `maximumMatches` announcements of it.
inline constexpr std::size_t maximumMatches = 16;
[[nodiscard]] DiscoveryMessage readDiscoveryMessage(std::string_view datagram);

} // namespace sdk::onvif
