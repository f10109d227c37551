#include "sdk/onvif/discovery/deviceinspector.h"

#include "sdk/onvif/discovery/neighbourtable.h"
#include "sdk/onvif/services/deviceservice.h"

namespace sdk::onvif {

namespace {

/// Reads, without a login, the information that a device without an administrator reports to any client.
/// False if the device refuses.
bool queryOpenDevice(FoundDevice &device, DeviceService &service)
{
    const auto information = service.information();
    if (!information.isOk())
        return false;
    device.model = information.value.model;
    device.firmwareVersion = information.value.firmwareVersion;
    device.serialNumber = information.value.serialNumber;
    if (const auto interfaces = service.interfaces(); interfaces.isOk()) {
        for (const DeviceInterface &interface : interfaces.value) {
            if (interface.address != device.address)
                continue;
            device.dhcp = interface.dhcp;
            device.mask = maskOf(interface.prefixLength);
            if (device.mac.empty())
                device.mac = interface.mac;
        }
    }
    if (const auto gateway = service.defaultGateway(); gateway.isOk())
        device.gateway = gateway.value;
    return true;
}

std::string macOfNeighbour(const std::string &address)
{
    const auto table = neighbourTable();
    const auto entry = table.find(address);
    return entry == table.end() ? std::string() : entry->second;
}

/// The table contains the address at the latest after a request to the device.
void noteNeighbour(FoundDevice &device)
{
    if (device.mac.empty()) {
        device.mac = macOfNeighbour(device.address);
        device.isNeighbour = !device.mac.empty();
    }
    device.service.identity = identityOf(device);
}

bool askOpenly(FoundDevice &device, const std::shared_ptr<HttpClient> &http, std::chrono::milliseconds wait)
{
    SoapClient client(HttpLogin{}, http);
    DeviceService service(client, device.service, std::chrono::steady_clock::now() + wait);
    const ServiceResult<std::vector<DeviceUser>> users = service.usersOpenly();
    noteNeighbour(device);
    switch (users.error) {
    case NetError::None:
        // Some devices respond to this request without a login, with all their users or with none.
        device.state = queryOpenDevice(device, service) ? InitialisationBits::Uninitialised
                                                        : InitialisationBits::Initialised;
        return true;
    case NetError::WrongPassword:
    case NetError::Refused:
    case NetError::NotSupported:
        device.state = InitialisationBits::Initialised;
        return true;
    default:
        return false;
    }
}

} // namespace

bool inspectDevice(FoundDevice &device, const std::shared_ptr<HttpClient> &http,
                   std::chrono::milliseconds wait)
{
    noteNeighbour(device);
    const bool hasResponded = askOpenly(device, http, wait);
    device.service.identity = identityOf(device);
    return hasResponded;
}

} // namespace sdk::onvif
