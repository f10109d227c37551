// The first account of a factory-new device.
#pragma once

#include "sdk/onvif/soap/soapclient.h"

#include <memory>
#include <string>

namespace sdk::onvif {

/// Creates the administrator `account` on a device that has none. If an account of that name exists, it gets
/// the password and becomes an administrator instead. `service` is the device service, `http` sends the
/// requests, all of them without a login. At last the function checks that the device refuses a request
/// without a login. Blocks until `deadline` at most. Returns NetError::None if the account is created and the
/// check has succeeded.
///
/// `mac` is the MAC of the intended device, "02:1a:c5:00:40:17"; empty if it is unknown.
///
/// Errors before anything is changed: NotSupported if the device requires a login, because it has an
/// administrator; AddressInUse if the device reports the MACs of all its interfaces and `mac` is not
/// among them; otherwise the error of the first request. Errors after the device has accepted the account:
/// Refused if it still responds to requests without a login, Unconfirmed if it does not respond to the check.
/// Any other error is that of the request for the account: after a timeout or a broken connection, the device
/// may have created it.
[[nodiscard]] NetError initialiseDevice(const ServiceAddress &service,
                                        const std::shared_ptr<HttpClient> &http, const HttpLogin &account,
                                        const std::string &mac, SoapClient::Deadline deadline);

} // namespace sdk::onvif
