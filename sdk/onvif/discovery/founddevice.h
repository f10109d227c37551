// A device that a search has found, with the information that is available without a login.
#pragma once

#include "sdk/onvif/discovery/probemessage.h"
#include "sdk/searchblocks.h"

#include <string>

namespace sdk::onvif {

/// A device that has responded from its own address.
struct FoundDevice
{
    std::string address = {};      ///< sender of its response; with the interface for a link-local address
    std::string localAddress = {}; ///< of this host, that received the response; empty if unknown
    ServiceAddress service = {};   ///< its device service, to which requests are sent
    DeviceAnnouncement announcement = {}; ///< the content of its message, which any host may have forged
    std::string mac = {};                 ///< "02:1a:c5:00:40:17"; empty if unknown
    bool isNeighbour = false;             ///< `mac` is from the neighbour table of this host
    InitialisationBits state = InitialisationBits::NotReported;

    // Known only for a device without an administrator; otherwise empty, and `dhcp` is false.
    std::string model = {};
    std::string firmwareVersion = {};
    std::string serialNumber = {};
    std::string mask = {}; ///< "255.255.255.0"
    std::string gateway = {};
    bool dhcp = false;
};

/// The device service of an announcement from `address`. Scheme, port and path are those of the announced
/// service whose host is `address` (with or without the interface of a link-local address), HTTP before
/// HTTPS. Without such a service they are those of the first service, or the defaults of ServiceAddress if
/// no service is announced. The host is always `address`, since a message may contain any host.
[[nodiscard]] ServiceAddress serviceOf(const DeviceAnnouncement &announcement, const std::string &address);

/// The MAC (FoundDevice::mac, otherwise the announced one), otherwise the UUID; empty if none is known.
[[nodiscard]] std::string identityOf(const FoundDevice &device);

/// True if the host of an announced service is `address`, with or without its interface.
[[nodiscard]] bool namesOwnService(const DeviceAnnouncement &announcement, const std::string &address);

/// The device as the block that search handlers receive. Strings that do not fit their fields are truncated.
[[nodiscard]] SearchResponse searchResponseOf(const FoundDevice &device);

/// "255.255.255.0" for 24; empty for a length outside 1 to 32.
[[nodiscard]] std::string maskOf(int prefixLength);

/// 24 for "255.255.255.0"; nothing for a string that is not an IPv4 mask of contiguous bits, and for
/// "0.0.0.0".
[[nodiscard]] std::optional<int> prefixLengthOf(std::string_view mask);

} // namespace sdk::onvif
