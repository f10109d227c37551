#include "fuzz/input.h"
#include "sdk/onvif/discovery/founddevice.h"
#include "sdk/onvif/discovery/probemessage.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    fuzz::disableLogging();
    const std::string_view datagram(reinterpret_cast<const char *>(data), size);
    const std::string address = "192.0.2.7";
    const auto announcements = sdk::onvif::readDiscoveryMessage(datagram).announcements;
    if (announcements.size() > sdk::onvif::maximumMatches)
        qFatal("more devices than the limit");
    for (const sdk::onvif::DeviceAnnouncement &announcement : announcements) {
        sdk::onvif::FoundDevice device;
        device.address = address;
        device.announcement = announcement;
        device.service = sdk::onvif::serviceOf(announcement, address);
        if (device.service.host != address)
            qFatal("the service of a device has another address than its sender");
        if (device.service.port < 1 || device.service.port > 65535)
            qFatal("the port is invalid");
        static_cast<void>(sdk::onvif::searchResponseOf(device));
    }
    return 0;
}
