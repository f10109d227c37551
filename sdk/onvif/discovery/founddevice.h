// A device that a search has found, and what is known of it before a login.
#pragma once

#include "sdk/onvif/discovery/probemessage.h"
#include "sdk/searchblocks.h"

#include <string>

namespace sdk::onvif {

/// A device that has answered from its own address.
struct FoundDevice
{
    std::string address = {};      ///< where its answer came from; with the interface for a link-local one
    std::string localAddress = {}; ///< of this computer
    ServiceAddress service = {};
    DeviceAnnouncement announcement = {};
    std::string mac = {};
    bool isNeighbour = false; ///< `mac` is from the neighbour table of this computer
    InitialisationBits state = InitialisationBits::NotReported;

    // Known only of a device that answers without a login, empty otherwise.
    std::string model = {};
    std::string firmwareVersion = {};
    std::string serialNumber = {};
    std::string mask = {};
    std::string gateway = {};
    bool dhcp = false;
};

/// The device service of an announcement that came from `address`: the one that names this address, without
/// its interface if it is a link-local one, and over HTTP before one over HTTPS; else the first one's port
/// and path at this address. Never another host: a message can name any.
[[nodiscard]] ServiceAddress serviceOf(const DeviceAnnouncement &announcement, const std::string &address);

/// The MAC, else the UUID; empty if neither is known.
[[nodiscard]] std::string identityOf(const FoundDevice &device);

/// Whether the announcement names a service at `address` itself.
[[nodiscard]] bool namesOwnService(const DeviceAnnouncement &announcement, const std::string &address);

/// The answer as the library delivers it.
[[nodiscard]] SearchAnswer searchAnswerOf(const FoundDevice &device);

/// "255.255.255.0" for 24; empty for a length that is none.
[[nodiscard]] std::string maskOf(int prefixLength);

/// 24 for "255.255.255.0"; nothing for a text that is no mask.
[[nodiscard]] std::optional<int> prefixLengthOf(std::string_view mask);

} // namespace sdk::onvif
