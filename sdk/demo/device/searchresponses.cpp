#include "sdk/demo/device/searchresponses.h"

#include "sdk/demo/device/fieldtext.h"

namespace sdk::demo {

SearchResponse searchResponse(const SceneDevice &device, int ipVersion, const QString &localAddress)
{
    SearchResponse response = {};
    response.size = sizeof(SearchResponse);
    writePlain(response.localAddress, localAddress);

    SearchDeviceInformation &information = response.device;
    information.ipVersion = ipVersion;
    information.port = device.port;
    if (ipVersion == 6) {
        writePlain(information.address, device.ipv6);
        writePlain(information.subnetMask, QString::number(device.ipv6PrefixLength));
    } else {
        writePlain(information.address, device.address);
        writePlain(information.subnetMask, device.mask);
        writePlain(information.gateway, device.gateway);
    }
    // Faults do not change the addresses and the MAC, which identify the device.
    writePlain(information.mac, device.mac);

    const FieldWriter writer(device);
    writer.write(information.deviceType, device.type);
    writer.write(information.detailModel, device.model);
    writer.write(information.deviceName, device.name);
    writer.write(information.softwareVersion, device.version);
    writer.write(information.serialNumber, device.serial);

    information.httpPort = static_cast<std::uint16_t>(device.httpPort);
    information.dhcpEnabled = device.dhcp ? 1 : 0;
    const InitialisationBits state =
        device.isUninitialised() ? InitialisationBits::Uninitialised : device.initialisation;
    information.initialisationState = static_cast<std::uint8_t>(state);
    information.passwordResetWay = device.resetWay;
    return response;
}

} // namespace sdk::demo
