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
    std::string address = {}; ///< unused with `dhcp`, as are the next two
    std::string mask = {};    ///< dotted; empty for the present mask
    std::string gateway = {}; ///< empty for the present gateway
    bool dhcp = false;
    std::string mac = {}; ///< of the device, empty if unknown
    /// Timeouts until a device responds at its new address, without and with a reboot. For most of a minute,
    /// this host sends to the device that had the address before.
    std::chrono::milliseconds settlingTime{60000};
    std::chrono::milliseconds rebootTime{120000};
};

/// Logs in to the device, changes its address, and reboots the device if it requires that. Succeeds when the
/// same device responds at the new address; with DHCP, when the device has accepted the request. `deadline`
/// limits the requests; the timeouts of the order limit the wait for the new address. A changed gateway is
/// restored when the device refuses the address.
///
/// A CallStop of this thread ends the requests before the first change, and the wait for the device after the
/// last one; changes are completed. Cancelling `http` ends every request. Returns Cancelled if the CallStop
/// was requested before anything was changed.
///
/// Returns InvalidValue for an invalid mask and for an empty address without DHCP. Returns AddressInUse if
/// another device responds at the present or at the new address, Unconfirmed if no device responds at the new
/// one.
[[nodiscard]] NetError changeAddress(const ServiceAddress &service, const std::shared_ptr<HttpClient> &http,
                                     const HttpLogin &login, const AddressOrder &order,
                                     SoapClient::Deadline deadline);

} // namespace sdk::onvif
