// A new address for a device.
#pragma once

#include "sdk/onvif/soap/soapclient.h"

#include <chrono>
#include <memory>
#include <string>

namespace sdk::onvif {

/// The requested IPv4 settings of a device.
struct AddressOrder
{
    std::string address = {}; ///< dotted; not sent with `dhcp`
    std::string mask = {};    ///< dotted; empty to keep the present mask; not sent with `dhcp`
    std::string gateway = {}; ///< dotted; empty to keep the present gateway; not sent with `dhcp`
    bool dhcp = false;        ///< the device gets its settings by DHCP
    std::string mac = {};     ///< of the device, in the form of canonicalMac(); empty if unknown
    /// Timeout until the device responds at its new address without a reboot. If another device had that
    /// address before, this host sends to the MAC of the other device for most of a minute.
    std::chrono::milliseconds settlingTime{60000};
    /// The same timeout for a device that reboots.
    std::chrono::milliseconds rebootTime{120000};
};

/// Logs in to the device with the device service `service`, writes the gateway and then the address, and
/// reboots the device if it requires that. Blocks, and returns NetError::None when the same device responds
/// at the new address. With DHCP it returns None when the device has accepted the request. If the device
/// refuses the gateway at first, the gateway is written again after the change of the address. If the device
/// refuses the address, a written gateway is restored.
///
/// `deadline` limits the requests up to the reboot. The wait for the new address ends at `deadline` or at the
/// timeout of the order, whichever is later. The second request for the gateway has the timeout
/// `AddressOrder::settlingTime`.
///
/// A stop of this thread's CallStop (the caller has cancelled the operation) ends the requests before the
/// first change: the result is then Cancelled. Later it ends only the wait for the new address, with
/// Unconfirmed. Cancelling `http`, which sends the requests, ends every request.
///
/// Errors before anything is changed: InvalidValue for an invalid mask or an empty address, without DHCP
/// only; AddressInUse if the device is not the one with `AddressOrder::mac`; NotSupported if the device
/// reports no interface to change; the errors of the login (OnvifSession::open()) and of the request for the
/// interfaces. Errors of the change: the reason of the device to refuse the address or the reboot; with DHCP
/// also the error of a lost response. Errors after the change: Unconfirmed if no device responds at the new
/// address, AddressInUse if another device responds there, otherwise the error of the gateway.
[[nodiscard]] NetError changeAddress(const ServiceAddress &service, const std::shared_ptr<HttpClient> &http,
                                     const HttpLogin &login, const AddressOrder &order,
                                     SoapClient::Deadline deadline);

} // namespace sdk::onvif
