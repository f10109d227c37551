#include "sdk/onvif/discovery/founddevice.h"

#include "sdk/blocktext.h"

#include <arpa/inet.h>

#include <algorithm>
#include <array>
#include <bit>

namespace sdk::onvif {

namespace {

/// The service whose URL contains `address`; HTTP is preferred to HTTPS. A device does not know this host's
/// name for the interface of a link-local address.
std::optional<ServiceAddress> ownService(const DeviceAnnouncement &announcement, const std::string &address)
{
    const std::string_view host = std::string_view(address).substr(0, address.find('%'));
    for (const bool isSecure : {false, true}) {
        for (const ServiceAddress &service : announcement.services) {
            if (service.isSecure == isSecure && (service.host == address || service.host == host))
                return service;
        }
    }
    return std::nullopt;
}

} // namespace

ServiceAddress serviceOf(const DeviceAnnouncement &announcement, const std::string &address)
{
    ServiceAddress service;
    if (const auto own = ownService(announcement, address))
        service = *own;
    else if (!announcement.services.empty())
        service = announcement.services.front();
    service.host = address;
    return service;
}

std::string identityOf(const FoundDevice &device)
{
    const std::string &mac = device.mac.empty() ? device.announcement.mac : device.mac;
    return mac.empty() ? device.announcement.uuid : mac;
}

bool namesOwnService(const DeviceAnnouncement &announcement, const std::string &address)
{
    return ownService(announcement, address).has_value();
}

SearchResponse searchResponseOf(const FoundDevice &device)
{
    SearchResponse response{};
    response.size = sizeof(response);
    setBlockText(response.localAddress, device.localAddress);
    SearchDeviceInformation &information = response.device;
    information.ipVersion = device.address.find(':') == std::string::npos ? 4 : 6;
    information.port = device.service.port;
    setBlockText(information.address, device.address);
    setBlockText(information.subnetMask, device.mask);
    setBlockText(information.gateway, device.gateway);
    setBlockText(information.mac, device.mac.empty() ? device.announcement.mac : device.mac);
    setBlockText(information.deviceType, device.announcement.isRecorder ? "NVR" : "IPC");
    setBlockText(information.detailModel, device.model.empty() ? device.announcement.model : device.model);
    setBlockText(information.deviceName, device.announcement.name);
    setBlockText(information.softwareVersion, device.firmwareVersion);
    setBlockText(information.serialNumber, device.serialNumber);
    if (!device.service.isSecure && device.service.port <= 65535)
        information.httpPort = static_cast<std::uint16_t>(device.service.port);
    information.dhcpEnabled = device.dhcp ? 1 : 0;
    information.initialisationState = static_cast<std::uint8_t>(device.state);
    setBlockText(information.uuid, device.announcement.uuid);
    return response;
}

std::string maskOf(int prefixLength)
{
    if (prefixLength < 1 || prefixLength > 32)
        return {};
    const in_addr mask = {.s_addr = htonl(0xFFFFFFFFU << (32 - prefixLength))};
    std::array<char, INET_ADDRSTRLEN> text{};
    return ::inet_ntop(AF_INET, &mask, text.data(), text.size()) ? text.data() : std::string();
}

std::optional<int> prefixLengthOf(std::string_view mask)
{
    in_addr address{};
    if (::inet_pton(AF_INET, std::string(mask).c_str(), &address) != 1)
        return std::nullopt;
    const std::uint32_t bits = ntohl(address.s_addr);
    const int length = std::countl_one(bits);
    const bool isContiguous = length == 32 || (bits << length) == 0;
    return isContiguous && length > 0 ? std::optional(length) : std::nullopt;
}

} // namespace sdk::onvif
