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
    std::string localAddress = {}; ///< of this host
    ServiceAddress service = {};
    DeviceAnnouncement announcement = {};
    std::string mac = {};
    bool isNeighbour = false; ///< `mac` is from the neighbour table of this host
    InitialisationBits state = InitialisationBits::NotReported;

    // Set only for a device that responds without a login, empty otherwise.
    std::string model = {};
    std::string firmwareVersion = {};
    std::string serialNumber = {};
    std::string mask = {};
    std::string gateway = {};
    bool dhcp = false;
};

/// The device service of an announcement from `address`: the service whose URL contains this address (without
/// the interface of a link-local address), HTTP preferred to HTTPS; otherwise the port and path of the first
/// service, at this address. The host is always `address`, since a message may contain any host.
[[nodiscard]] ServiceAddress serviceOf(const DeviceAnnouncement &announcement, const std::string &address);

/// The MAC, otherwise the UUID; empty if neither is known.
[[nodiscard]] std::string identityOf(const FoundDevice &device);

/// True if the announcement contains a service at `address`.
[[nodiscard]] bool namesOwnService(const DeviceAnnouncement &announcement, const std::string &address);

/// The search answer of the network library's interface.
[[nodiscard]] SearchAnswer searchAnswerOf(const FoundDevice &device);

/// "255.255.255.0" for 24; empty for a length outside 0 to 32.
[[nodiscard]] std::string maskOf(int prefixLength);

/// 24 for "255.255.255.0"; nothing for an invalid mask.
[[nodiscard]] std::optional<int> prefixLengthOf(std::string_view mask);

} // namespace sdk::onvif
