// Maintenance of a device, its initialisation and its address.
#include "sdk/blocktext.h"
#include "sdk/onvif/addresschange.h"
#include "sdk/onvif/deviceinitialisation.h"
#include "sdk/onvif/mapping/systemmapping.h"
#include "sdk/onvif/onvifnetlibrary.h"

#include <algorithm>
#include <cstring>

namespace sdk::onvif {

bool OnvifNetLibrary::NetSetDeviceSetting(LLONG loginHandle, DeviceSetting setting, std::int32_t,
                                          const void *block, std::uint32_t blockSize,
                                          std::chrono::milliseconds wait)
{
    return onSession(loginHandle, wait, [&](OnvifSession &session, Deadline deadline) {
        if (setting != DeviceSetting::Time)
            return NetError::NotSupported;
        TimeRecord time{};
        if (!block || blockSize != sizeof(time))
            return NetError::InvalidValue;
        std::memcpy(&time, block, sizeof(time));
        return setDeviceTime(session, time, deadline);
    });
}

bool OnvifNetLibrary::NetRebootDevice(LLONG loginHandle, std::chrono::milliseconds wait)
{
    return onSession(loginHandle, wait, [this](OnvifSession &session, Deadline deadline) {
        const NetError error = session.device(deadline).reboot().error;
        if (error == NetError::None)
            endSessionsTo(session.service().host);
        return error;
    });
}

bool OnvifNetLibrary::NetResetSystem(LLONG loginHandle, const ResetSystemInput &input,
                                     ResetSystemOutput &output, std::chrono::milliseconds wait)
{
    return onSession(loginHandle, wait, [&](OnvifSession &session, Deadline deadline) {
        if (input.size != sizeof(input) || output.size != sizeof(output))
            return NetError::InvalidValue;
        const NetError error = session.device(deadline).resetCompletely().error;
        if (error == NetError::None)
            endSessionsTo(session.service().host);
        return error;
    });
}

bool OnvifNetLibrary::NetModifyPassword(LLONG loginHandle, const ModifyPasswordInput &input,
                                        std::chrono::milliseconds wait)
{
    return onSession(loginHandle, wait, [&](OnvifSession &session, Deadline deadline) {
        if (input.size != sizeof(input))
            return NetError::InvalidValue;
        const std::string account(blockText(input.account));
        const HttpLogin login = session.client().login();
        // The standard's operation has no parameter for the old password. The session's password has been
        // accepted.
        if (login.account == account && login.password != blockText(input.oldPassword))
            return NetError::WrongPassword;
        DeviceService device = session.device(deadline);
        const auto users = device.users();
        if (!users.isOk())
            return users.error;
        const auto user = std::find_if(users.value.begin(), users.value.end(),
                                       [&account](const DeviceUser &known) { return known.name == account; });
        if (user == users.value.end())
            return NetError::NoSuchAccount;
        const std::string password(blockText(input.newPassword));
        // Other calls may be refused with the old password before the new one is known here.
        const auto delay = session.client().delayRefusals();
        const ServiceOutcome outcome = device.setPassword(*user, password);
        if (outcome.isOk() && login.account == account)
            session.client().setPassword(password);
        return outcome.error;
    });
}

bool OnvifNetLibrary::NetInitDeviceAccount(const InitDeviceAccountInput &input, DeviceRequestOutput &output,
                                           std::chrono::milliseconds wait, const char *)
{
    const CallGate::Call call(m_gate);
    if (!call.isAllowed() || input.size != sizeof(input) || output.size != sizeof(output))
        return m_error.fail(NetError::InvalidValue);
    const auto http = std::make_shared<HttpClient>(m_certificates);
    const std::stop_callback cancelOnCleanup(call.stop(), [http] { http->cancel(); });
    const NetError error =
        initialiseDevice(m_discovery->serviceAt(std::string(blockText(input.address)), input.port), http,
                         {.account = std::string(blockText(input.account)),
                          .password = std::string(blockText(input.password))},
                         std::string(blockText(input.mac)), std::chrono::steady_clock::now() + wait);
    return error == NetError::None || m_error.fail(error);
}

bool OnvifNetLibrary::NetModifyDeviceBySearch(const ModifyDeviceInput &input, DeviceRequestOutput &output,
                                              std::chrono::milliseconds wait)
{
    const CallGate::Call call(m_gate);
    if (!call.isAllowed() || input.size != sizeof(input) || output.size != sizeof(output))
        return m_error.fail(NetError::InvalidValue);
    const SearchDeviceInformation &device = input.device;
    const auto http = std::make_shared<HttpClient>(m_certificates);
    const std::stop_callback cancelOnCleanup(call.stop(), [http] { http->cancel(); });
    const AddressOrder order = {.address = std::string(blockText(device.address)),
                                .mask = std::string(blockText(device.subnetMask)),
                                .gateway = std::string(blockText(device.gateway)),
                                .dhcp = device.dhcpEnabled != 0,
                                .mac = std::string(blockText(device.mac))};
    const HttpLogin login = {.account = std::string(blockText(device.account)),
                             .password = std::string(blockText(device.password))};
    const ServiceAddress service =
        m_discovery->serviceAt(std::string(blockText(device.currentAddress)), device.port);
    const NetError error =
        changeAddress(service, http, login, order, std::chrono::steady_clock::now() + wait);
    if (!order.dhcp && (error == NetError::None || error == NetError::Unconfirmed))
        m_discovery->moved(service, order.address);
    return error == NetError::None || m_error.fail(error);
}

} // namespace sdk::onvif
