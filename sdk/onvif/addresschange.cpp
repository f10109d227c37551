#include "sdk/onvif/addresschange.h"

#include "sdk/onvif/discovery/founddevice.h"
#include "sdk/onvif/mapping/systemmapping.h"
#include "sdk/onvif/session/onvifsession.h"

#include <algorithm>
#include <thread>

namespace sdk::onvif {

namespace {

using namespace std::chrono_literals;

/// Whether an error leaves open what the device has done: the answer was lost.
bool isAnswerLost(NetError error)
{
    return error == NetError::NetworkFailure || error == NetError::ConnectTimeout;
}

/// Whether the device of `session` answers at `address` with its login, within the deadline.
bool answersAt(OnvifSession &session, const std::string &address, SoapClient::Deadline deadline)
{
    constexpr auto pause = 200ms;
    ServiceAddress service = session.service();
    service.host = address;
    while (std::chrono::steady_clock::now() < deadline && !session.client().http().isCancelled()) {
        const auto attemptEnd = std::min(deadline, std::chrono::steady_clock::now() + 1s);
        DeviceService device(session.client(), service, attemptEnd);
        const auto information = device.information();
        if (information.isOk())
            return information.value.serialNumber == session.information().serialNumber;
        // Another device, which does not know the account, or has not the key of this one.
        if (information.error == NetError::SessionEnded ||
            information.error == NetError::UnknownCertificate ||
            information.error == NetError::ChangedCertificate)
            return false;
        std::this_thread::sleep_for(pause);
    }
    return false;
}

/// Whether the device reports the MACs of its interfaces, and `mac` is none of them.
bool isOtherDevice(const std::vector<DeviceInterface> &interfaces, const std::string &mac)
{
    const auto hasMac = [](const DeviceInterface &interface) {
        return !interface.mac.empty();
    };
    return !mac.empty() && !interfaces.empty() && std::all_of(interfaces.begin(), interfaces.end(), hasMac) &&
           std::none_of(interfaces.begin(), interfaces.end(),
                        [&mac](const DeviceInterface &interface) { return interface.mac == mac; });
}

const DeviceInterface *interfaceOf(const std::vector<DeviceInterface> &interfaces, const std::string &mac,
                                   const std::string &address)
{
    const auto same =
        std::find_if(interfaces.begin(), interfaces.end(), [&mac](const DeviceInterface &interface) {
            return !mac.empty() && interface.mac == mac;
        });
    return same != interfaces.end() ? &*same : interfaceInUse(interfaces, address);
}

} // namespace

NetError changeAddress(const ServiceAddress &service, const std::shared_ptr<HttpClient> &http,
                       const HttpLogin &login, const AddressOrder &order, SoapClient::Deadline deadline)
{
    const std::optional<int> prefixLength = prefixLengthOf(order.mask);
    const bool isMask =
        prefixLength || order.mask.empty(); // a search does not report the mask of every device
    if (!order.dhcp && (!isMask || order.address.empty()))
        return NetError::InvalidValue;
    NetError error = NetError::None;
    const std::shared_ptr<OnvifSession> session = OnvifSession::open(service, login, http, deadline, error);
    if (!session)
        return error;
    DeviceService device = session->device(deadline);
    const auto interfaces = device.interfaces();
    // Several factory-new devices may have one address: the one that answers need not be the one that is
    // meant.
    if (interfaces.isOk() && isOtherDevice(interfaces.value, order.mac))
        return NetError::Refused;
    const DeviceInterface *interface = interfaceOf(interfaces.value, order.mac, service.host);
    if (!interfaces.isOk() || !interface)
        return interfaces.isOk() ? NetError::NotSupported : interfaces.error;

    // The gateway first: after the address the device may be gone from here. Some refuse a gateway that lies
    // outside the network of the address that they still have; those get it afterwards.
    bool hasGateway = order.dhcp || order.gateway.empty() || device.setDefaultGateway(order.gateway).isOk();
    DeviceInterface changed = *interface;
    changed.dhcp = order.dhcp;
    changed.address = order.address;
    changed.prefixLength = prefixLength.value_or(interface->prefixLength);
    const ServiceResult<bool> result = device.setAddress(changed);
    if (!result.isOk() && !isAnswerLost(result.error))
        return result.error;
    if (result.isOk() && result.value)
        return device.reboot().error;
    if (order.dhcp)
        return result.error; // where it is now, only a search can say
    const bool isThere = answersAt(*session, order.address, deadline);
    if (isThere && !hasGateway) {
        ServiceAddress moved = service;
        moved.host = order.address;
        hasGateway =
            DeviceService(session->client(), moved, deadline).setDefaultGateway(order.gateway).isOk();
    }
    if (!isThere)
        return result.isOk() ? NetError::None : NetError::ConnectTimeout;
    return hasGateway ? NetError::None : NetError::InvalidValue;
}

} // namespace sdk::onvif
