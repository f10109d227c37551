// Messages of WS-Discovery: the probes of a search, the responses of devices and their unsolicited messages.
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

/// The types of devices that a probe requests.
enum class ProbeKind
{
    Transmitters, ///< the type that every camera and recorder has
    Anything,     ///< no type: some devices have only a vendor-specific type
};

/// The XML text of a probe with a new message identifier.
[[nodiscard]] std::string probeMessage(ProbeKind kind);

/// The information that a device announces. Its form is checked, its truth is not: any host of the network
/// can send it. Strings are empty if they are not announced, and truncated after 120 bytes.
struct DeviceAnnouncement
{
    bool isLeaving = false; ///< a Bye message
    std::string uuid = {};  ///< of the device, 36 characters without "urn:uuid:", in lower case; may be empty
    std::vector<ServiceAddress> services = {}; ///< addresses of its device service, as the device knows them;
                                               ///< at most 8
    std::string name = {};
    std::string model = {};
    std::string location = {};
    std::string mac = {};    ///< "02:1a:c5:00:40:17"; empty if the scopes (URIs with properties) have none
    bool isRecorder = false; ///< a type in its scopes contains "recorder"
};

/// The contents of a datagram.
struct DiscoveryMessage
{
    enum class Kind
    {
        Unreadable,   ///< not a message of WS-Discovery, or a document beyond the bounds
        Request,      ///< a Probe or Resolve message, of this or another searching application
        Announcement, ///< a ProbeMatches, ResolveMatches, Hello or Bye message
    };

    Kind kind = Kind::Unreadable;
    std::vector<DeviceAnnouncement> announcements = {}; ///< with an ONVIF type, or without any type
    std::size_t otherDevices = 0;                       ///< number of announcements with other types only
};

/// Announcements in one datagram after this number are ignored.
inline constexpr std::size_t maximumMatches = 16;

/// Reads a datagram. An invalid datagram gives Kind::Unreadable.
[[nodiscard]] DiscoveryMessage readDiscoveryMessage(std::string_view datagram);

} // namespace sdk::onvif
