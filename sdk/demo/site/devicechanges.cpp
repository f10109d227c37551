#include "sdk/demo/site/devicechanges.h"

#include "sdk/demo/device/fieldtext.h"
#include "sdk/demo/scene/addresstext.h"
#include "sdk/demo/site/sitestate.h"

namespace sdk::demo {

namespace {

// The range of the last octet of the DHCP addresses.
constexpr int firstLease = 220;
constexpr int lastLease = 239;

bool isUnset(const QString &address)
{
    return address == QLatin1String("0.0.0.0");
}

void takeLease(SceneDevice &device, const DeviceAddresses &addresses, const QString &localAddress)
{
    if (device.dhcp && !isUnset(device.address))
        return;
    const bool isElsewhere = device.inOtherSegment && !isUnset(device.address);
    const QString &neighbour = isElsewhere ? device.address : localAddress;
    const QString segment = neighbour.left(neighbour.lastIndexOf(u'.') + 1);
    device.dhcp = true;
    device.mask = QStringLiteral("255.255.255.0");
    device.gateway = segment + u'1';
    for (int number = firstLease; number <= lastLease; ++number) {
        const QString address = segment + QString::number(number);
        if (address != localAddress && !addresses.isTaken(address, device)) {
            device.address = address;
            return;
        }
    }
    device.address = QStringLiteral("0.0.0.0");
}

NetError changeAddress(SceneDevice &device, const DeviceAddresses &addresses,
                       const SearchDeviceInformation &requested, const QString &localAddress)
{
    if (device.hasFault(Fault::RefusesAddressChange))
        return NetError::Refused;
    if (device.isUninitialised() || device.address.isEmpty() || requested.ipVersion != 4)
        return NetError::NotSupported;
    if (requested.dhcpEnabled != 0) {
        takeLease(device, addresses, localAddress);
        return NetError::None;
    }
    const QString address = textOf(requested.address);
    const QString mask = textOf(requested.subnetMask);
    const QString gateway = textOf(requested.gateway);
    if (!isIpv4Address(address) || isUnset(address) || !isIpv4Mask(mask) ||
        (!gateway.isEmpty() && !isIpv4Address(gateway)))
        return NetError::NotSupported;
    device.dhcp = false;
    device.address = address;
    device.mask = mask;
    device.gateway = gateway;
    return NetError::None;
}

} // namespace

NetError initialiseDevice(SiteState &site, const QString &mac, const SceneAccount &account)
{
    NetError error = NetError::ConnectTimeout;
    site.changeDevice(mac, [&](SceneDevice &device, const DeviceAddresses &) {
        if (device.hasFault(Fault::RefusesInitialisation)) {
            error = NetError::Refused;
        } else if (!device.isUninitialised() || account.user.isEmpty() || account.password.isEmpty()) {
            error = NetError::NotSupported;
        } else {
            device.accounts = {account};
            device.initialisation = InitialisationBits::Initialised;
            device.clearFault(Fault::NotInitialised);
            error = NetError::None;
        }
    });
    return error;
}

NetError changeDeviceAddress(SiteState &site, const QString &mac, const SearchDeviceInformation &requested)
{
    NetError error = NetError::ConnectTimeout;
    const QString localAddress = site.localAddress();
    site.changeDevice(mac, [&](SceneDevice &device, const DeviceAddresses &addresses) {
        error = changeAddress(device, addresses, requested, localAddress);
    });
    return error;
}

} // namespace sdk::demo
