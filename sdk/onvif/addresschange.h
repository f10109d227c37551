// A new address for a device.
#pragma once

#include "sdk/onvif/soap/soapclient.h"

#include <chrono>
#include <memory>
#include <string>

namespace sdk::onvif {

/// What a device's IPv4 address is to become.
struct AddressOrder
{
    std::string address = {}; ///< with `dhcp` not used, as are the next two
    std::string mask = {};
    std::string gateway = {}; ///< empty for none
    bool dhcp = false;
    std::string mac = {}; ///< of the device, empty if it is not known
    /// How long a device may take until it answers at its new address, without and with a reboot. This
    /// computer sends to the device that had the address before for most of a minute.
    std::chrono::milliseconds settlingTime{60000};
    std::chrono::milliseconds rebootTime{120000};
};

/// Logs in to the device and changes the address, and reboots the device if it asks for that. Succeeds when
/// the same device answers at the new address; with DHCP, when the device has taken the request. The device
/// may take longer than `deadline` for it, as the order says. A gateway that was changed is restored when the
/// device refuses the address.
///
/// A CallStop of this thread ends the wait for the device, and a cancelled `http` every request. Cancelled if
/// it was stopped before anything was changed.
///
/// AddressInUse if another device answers at the present address or at the new one, Unconfirmed if nobody
/// answers at the new one.
[[nodiscard]] NetError changeAddress(const ServiceAddress &service, const std::shared_ptr<HttpClient> &http,
                                     const HttpLogin &login, const AddressOrder &order,
                                     SoapClient::Deadline deadline);

} // namespace sdk::onvif
