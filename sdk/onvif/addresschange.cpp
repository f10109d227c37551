#include "sdk/onvif/addresschange.h"

#include "sdk/callstop.h"
#include "sdk/onvif/discovery/founddevice.h"
#include "sdk/onvif/discovery/neighbourtable.h"
#include "sdk/onvif/mapping/systemmapping.h"
#include "sdk/onvif/session/clocktime.h"
#include "sdk/onvif/session/onvifsession.h"

#include <algorithm>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

namespace sdk::onvif {

namespace {

using namespace std::chrono_literals;

/// True for an error after which the device may have carried out the request: its response was lost.
bool isResponseLost(NetError error)
{
    return error == NetError::NetworkFailure || error == NetError::ConnectTimeout;
}

/// The MAC of the device that responded at `address`; empty if the neighbour table does not list the address.
std::string neighbourMac(const std::string &address)
{
    const auto neighbours = neighbourTable();
    const auto entry = neighbours.find(address);
    return entry == neighbours.end() ? std::string() : entry->second;
}

enum class Presence
{
    Silent,
    Same,
    Other, ///< another device, which does not know the account, or does not have the key or the MAC of this
           ///< one
};

/// A device at its new address.
class MovedDevice
{
public:
    using Deadline = SoapClient::Deadline;

    /// `macs` are the MACs of the device of `session`.
    MovedDevice(OnvifSession &session, const std::shared_ptr<HttpClient> &http, const std::string &address,
                std::vector<std::string> macs)
        : m_session(session), m_http(http), m_service(movedTo(session.service(), address)),
          m_macs(std::move(macs)),
          // A separate client: a refusal by another device does not concern the session.
          m_client(session.client().login(), http)
    {
    }

    /// Waits until a device responds. The login is sent once to each device that responds.
    [[nodiscard]] Presence wait(Deadline deadline)
    {
        constexpr auto pause = 200ms;
        const std::stop_callback cancelOnStop(CallStop::token(), [http = m_http] { http->cancel(); });
        Presence presence = Presence::Silent;
        while (presence == Presence::Silent && std::chrono::steady_clock::now() < deadline &&
               !m_http->isCancelled() && !CallStop::isRequested()) {
            presence = look(std::min(deadline, std::chrono::steady_clock::now() + 2s));
            if (presence == Presence::Silent)
                std::this_thread::sleep_for(pause);
        }
        return presence;
    }

    [[nodiscard]] DeviceService service(Deadline deadline) { return {m_client, m_service, deadline}; }

private:
    static ServiceAddress movedTo(ServiceAddress service, const std::string &address)
    {
        service.host = address;
        return service;
    }

    [[nodiscard]] Presence look(Deadline deadline)
    {
        DeviceService device = service(deadline);
        const auto clock = device.clockOpenly();
        if (clock.error == NetError::UnknownCertificate || clock.error == NetError::ChangedCertificate)
            return Presence::Other;
        if (!clock.isOk())
            return Presence::Silent; // or still starting
        const std::string mac = neighbourMac(m_service.host);
        if (!mac.empty() && !m_macs.empty() && !isOwnMac(mac))
            return Presence::Other;
        if (clock.value.utc)
            m_client.setClockOffset(clockOffset(*clock.value.utc));
        const auto information = device.information();
        if (!information.isOk())
            return isResponseLost(information.error) ? Presence::Silent : Presence::Other;
        const std::string &serial = m_session.information().serialNumber;
        if (information.value.serialNumber != serial)
            return Presence::Other;
        return !serial.empty() || hasOwnInterface(device) ? Presence::Same : Presence::Other;
    }

    [[nodiscard]] bool isOwnMac(const std::string &mac) const
    {
        return std::find(m_macs.begin(), m_macs.end(), mac) != m_macs.end();
    }

    [[nodiscard]] bool hasOwnInterface(DeviceService &device) const
    {
        const auto interfaces = device.interfaces();
        return std::any_of(interfaces.value.begin(), interfaces.value.end(),
                           [this](const DeviceInterface &interface) { return isOwnMac(interface.mac); });
    }

    OnvifSession &m_session;
    const std::shared_ptr<HttpClient> m_http;
    const ServiceAddress m_service;
    const std::vector<std::string> m_macs;
    SoapClient m_client;
};

/// The MACs that responses of the device may come from; empty if none is known.
std::vector<std::string> macsOf(const std::vector<DeviceInterface> &interfaces, const std::string &address)
{
    std::vector<std::string> macs;
    macs.reserve(interfaces.size());
    for (const DeviceInterface &interface : interfaces)
        macs.push_back(interface.mac);
    macs.push_back(neighbourMac(address));
    std::erase(macs, std::string());
    return macs;
}

/// The gateway of a device while its address is being changed.
class GatewayChange
{
public:
    /// An empty `gateway` stands for an unchanged gateway.
    explicit GatewayChange(std::string gateway) : m_gateway(std::move(gateway)) {}

    /// Some devices refuse a gateway outside the network of their present address. They receive it by a
    /// second call, after the address.
    [[nodiscard]] NetError write(DeviceService device)
    {
        if (m_gateway.empty() || m_isWritten)
            return NetError::None;
        if (!m_before)
            m_before = device.defaultGateway();
        const NetError error = device.setDefaultGateway(m_gateway).error;
        m_isWritten = error == NetError::None;
        return error;
    }

    void restore(DeviceService device) const
    {
        if (m_isWritten && m_before->isOk() && m_before->value != m_gateway)
            (void)device.setDefaultGateway(m_before->value);
    }

private:
    const std::string m_gateway;
    std::optional<ServiceResult<std::string>> m_before;
    bool m_isWritten = false;
};

const DeviceInterface *interfaceOf(const std::vector<DeviceInterface> &interfaces, const std::string &mac,
                                   const std::string &address)
{
    const auto same =
        std::find_if(interfaces.begin(), interfaces.end(), [&mac](const DeviceInterface &interface) {
            return !mac.empty() && interface.mac == mac;
        });
    return same != interfaces.end() ? &*same : interfaceInUse(interfaces, address);
}

/// A device before its address is changed.
struct PresentDevice
{
    std::shared_ptr<OnvifSession> session; ///< null if the login failed
    std::vector<DeviceInterface> interfaces;
    NetError error = NetError::None;
};

/// Logs in and queries the interfaces. A stop ends these requests, since they change nothing.
PresentDevice presentDevice(const ServiceAddress &service, const std::shared_ptr<HttpClient> &http,
                            const HttpLogin &login, SoapClient::Deadline deadline)
{
    const std::stop_callback cancelOnStop(CallStop::token(), [http] { http->cancel(); });
    PresentDevice present;
    present.session = OnvifSession::open(service, login, http, deadline, present.error);
    if (present.session) {
        auto interfaces = present.session->device(deadline).interfaces();
        present.interfaces = std::move(interfaces.value);
        present.error = interfaces.error;
    }
    if (isResponseLost(present.error) && CallStop::isRequested())
        present.error = NetError::Cancelled;
    return present;
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
    const PresentDevice present = presentDevice(service, http, login, deadline);
    if (present.error != NetError::None)
        return present.error;
    if (isOtherDevice(present.interfaces, order.mac))
        return NetError::AddressInUse;
    const DeviceInterface *interface = interfaceOf(present.interfaces, order.mac, service.host);
    if (!interface)
        return NetError::NotSupported;

    if (CallStop::isRequested())
        return NetError::Cancelled; // nothing has been changed up to here
    DeviceService device = present.session->device(deadline);
    std::vector<std::string> macs = macsOf(present.interfaces, service.host);
    // The gateway is written first: after the change of the address the device may be unreachable from this
    // host.
    GatewayChange gateway(order.dhcp ? std::string() : order.gateway);
    (void)gateway.write(device);
    DeviceInterface changed = *interface;
    changed.dhcp = order.dhcp;
    changed.address = order.address;
    changed.prefixLength = prefixLength.value_or(interface->prefixLength);
    const ServiceResult<bool> result = device.setAddress(changed);
    if (!result.isOk() && !isResponseLost(result.error)) {
        gateway.restore(device);
        return result.error;
    }
    const bool needsReboot = result.isOk() && result.value;
    if (needsReboot) {
        const NetError reboot = device.reboot().error;
        if (reboot != NetError::None && !isResponseLost(reboot))
            return reboot;
    }
    if (order.dhcp)
        return result.error; // only a search can find its new address

    MovedDevice moved(*present.session, http, order.address, std::move(macs));
    const auto latest =
        std::chrono::steady_clock::now() + (needsReboot ? order.rebootTime : order.settlingTime);
    switch (moved.wait(std::max(deadline, latest))) {
    case Presence::Silent:
        return NetError::Unconfirmed;
    case Presence::Other:
        return NetError::AddressInUse;
    case Presence::Same:
        break;
    }
    return gateway.write(moved.service(std::chrono::steady_clock::now() + order.settlingTime));
}

} // namespace sdk::onvif
