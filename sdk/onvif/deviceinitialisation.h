// The first account of a factory-new device.
#pragma once

#include "sdk/onvif/soap/soapclient.h"

#include <memory>
#include <string>

namespace sdk::onvif {

/// Creates an administrator on a device that has none, or sets the password if an account of that name
/// exists, and checks that the device then refuses requests without a login. NotSupported if the device
/// already has an administrator; AddressInUse if the device is not the one with `mac`, where both are known;
/// Refused if it still responds to requests without a login; Unconfirmed if it has accepted the account but
/// does not respond to the check.
[[nodiscard]] NetError initialiseDevice(const ServiceAddress &service,
                                        const std::shared_ptr<HttpClient> &http, const HttpLogin &account,
                                        const std::string &mac, SoapClient::Deadline deadline);

} // namespace sdk::onvif
