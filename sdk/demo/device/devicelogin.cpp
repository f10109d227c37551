#include "sdk/demo/device/devicelogin.h"

#include "sdk/demo/device/fieldtext.h"

#include <algorithm>
#include <array>

namespace sdk::demo {

namespace {

struct TypeCode
{
    const char *type;
    DeviceTypeCode code;
};

constexpr std::array typeCodes = {
    TypeCode{"IPC", DeviceTypeCode::Camera},
    TypeCode{"NVR", DeviceTypeCode::Recorder},
    TypeCode{"SVR", DeviceTypeCode::VideoServer},
    TypeCode{"SD", DeviceTypeCode::SpeedDome},
    TypeCode{"ITC", DeviceTypeCode::TrafficCamera},
    TypeCode{"Matrix", DeviceTypeCode::VideoWall},
    TypeCode{"PC-NVR", DeviceTypeCode::ComputerRecorder},
};

std::uint8_t typeCode(const QString &type)
{
    const auto found = std::find_if(typeCodes.begin(), typeCodes.end(), [&type](const TypeCode &entry) {
        return type == QLatin1String(entry.type);
    });
    return found == typeCodes.end() ? 0 : static_cast<std::uint8_t>(found->code);
}

} // namespace

const SceneAccount *accountOf(const SceneDevice &device, const QString &user)
{
    const auto found = std::find_if(device.accounts.begin(), device.accounts.end(),
                                    [&user](const SceneAccount &account) { return account.user == user; });
    return found == device.accounts.end() ? nullptr : &*found;
}

NetError LoginGuard::check(const SceneDevice &device, const QString &account, const QString &password,
                           LoginKind kind)
{
    if (device.isUninitialised())
        return NetError::NotSupported;
    const SceneAccount *known = accountOf(device, account);
    if (!known)
        return NetError::NoSuchAccount;
    const NetError error = checkPassword(device, *known, password, kind);
    if (error == NetError::None && device.hasFault(Fault::AccountLoggedIn))
        return kind == LoginKind::First ? NetError::AccountLoggedIn : NetError::AccountLoggedInSecure;
    return error;
}

NetError LoginGuard::checkPassword(const SceneDevice &device, const SceneAccount &account,
                                   const QString &password, LoginKind kind)
{
    const bool isCorrect = password == account.password && !device.hasFault(Fault::WrongPassword);
    const NetError wrong = kind == LoginKind::First ? NetError::WrongPassword : NetError::WrongPasswordSecure;
    const std::optional<FaultSetting> lock = device.fault(Fault::AccountLocked);
    if (!lock)
        return isCorrect ? NetError::None : wrong;

    const std::lock_guard guard(m_mutex);
    int &tries = m_wrongTries[{device.mac, account.user}];
    if (tries >= lock->number)
        return NetError::AccountLocked;
    if (isCorrect) {
        tries = 0;
        return NetError::None;
    }
    ++tries;
    return kind == LoginKind::Secure && tries < lock->number ? NetError::WrongPasswordTriesLeft : wrong;
}

LoginDeviceInformation loginInformation(const SceneDevice &device, bool throughTunnel)
{
    LoginDeviceInformation information = {};
    const FieldWriter writer(device);
    writer.write(information.serialNumber, device.serial);
    writer.write(information.model, device.model);
    information.loginKind = throughTunnel ? 1 : 0;
    information.deviceType = typeCode(device.type);
    information.channelCount = static_cast<std::uint16_t>(device.channels.size());
    return information;
}

} // namespace sdk::demo
