#include "sdk/onvif/deviceinitialisation.h"

#include "sdk/onvif/mapping/systemmapping.h"
#include "sdk/onvif/services/deviceservice.h"

#include <algorithm>

namespace sdk::onvif {

NetError initialiseDevice(const ServiceAddress &service, const std::shared_ptr<HttpClient> &http,
                          const HttpLogin &account, const std::string &mac, SoapClient::Deadline deadline)
{
    SoapClient client(HttpLogin{}, http);
    DeviceService device(client, service, deadline);
    const auto users = device.usersOpenly();
    if (users.error == NetError::WrongPassword)
        return NetError::NotSupported; // it has an administrator
    if (!users.isOk())
        return users.error;
    if (isOtherDevice(device.interfacesOpenly().value, mac))
        return NetError::AddressInUse;
    // Some devices are delivered with the account and without its password.
    const auto same =
        std::find_if(users.value.begin(), users.value.end(),
                     [&account](const DeviceUser &user) { return user.name == account.account; });
    const ServiceOutcome outcome =
        same == users.value.end()
            ? device.createAdministratorOpenly(account.account, account.password)
            : device.setPassword({.name = same->name, .level = "Administrator"}, account.password);
    if (!outcome.isOk())
        return outcome.error == NetError::WrongPassword ? NetError::NotSupported : outcome.error;
    switch (device.usersOpenly().error) {
    case NetError::None:
        return NetError::Refused;
    case NetError::WrongPassword:
        return NetError::None;
    default:
        return NetError::Unconfirmed;
    }
}

} // namespace sdk::onvif
