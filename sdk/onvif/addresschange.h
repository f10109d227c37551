// A new address for a device.
#pragma once

#include "sdk/onvif/soap/soapclient.h"

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
};

/// Logs in to the device and changes the address, and reboots the device if it asks for that. Succeeds if the
/// device has taken the address: by its answer, or, if the answer was lost because the device had moved, by
/// answering at the new address. ConnectTimeout if it has taken the request and answers nowhere before
/// `deadline`.
[[nodiscard]] NetError changeAddress(const ServiceAddress &service, const std::shared_ptr<HttpClient> &http,
                                     const HttpLogin &login, const AddressOrder &order,
                                     SoapClient::Deadline deadline);

} // namespace sdk::onvif
