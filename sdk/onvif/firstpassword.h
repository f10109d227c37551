// The first account of a factory-new device.
#pragma once

#include "sdk/onvif/soap/soapclient.h"

#include <memory>

namespace sdk::onvif {

/// Creates an administrator on a device that has none, and checks that the device then refuses requests
/// without a login. NotSupported if the device already has an administrator; Refused if it goes on answering
/// anybody.
[[nodiscard]] NetError giveFirstPassword(const ServiceAddress &service,
                                         const std::shared_ptr<HttpClient> &http, const HttpLogin &account,
                                         SoapClient::Deadline deadline);

} // namespace sdk::onvif
