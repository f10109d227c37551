// System configuration: one maintenance action on each device of a list.
#include "device/devicerow.h"
#include "device/devicestore.h"
#include "device/dh/devicedh.h"
#include "device/dh/securelogin.h"
#include "device/dh/systemaction.h"
#include "device/logging.h"
#include "sdk/blocktext.h"
#include "sdk/netlibrary.h"

using namespace std::chrono_literals;

namespace {

constexpr int refusedByDevice = 999;
constexpr int waitsForNewPassword = -1; ///< the old password was right
constexpr auto passwordWait = 10000ms;

/// False when the text is too long for the field: a password that was cut would be another one.
bool putWhole(auto &field, const QString &text)
{
    const QByteArray bytes = text.toLocal8Bit();
    sdk::setBlockText(field, bytes.toStdString());
    return static_cast<std::size_t>(bytes.size()) < field.size();
}

bool changePassword(sdk::NetLibrary &net, const KeptLogin &login, const QString &newPassword)
{
    sdk::ModifyPasswordInput input{};
    input.size = sizeof(input);
    const bool fits = putWhole(input.account, login.account) && putWhole(input.oldPassword, login.password) &&
                      putWhole(input.newPassword, newPassword);
    return fits && !newPassword.isEmpty() && net.NetModifyPassword(login.loginHandle, input, passwordWait);
}

} // namespace

void CDeviceDH::systemConfig(const QString &command, const QVariantMap &data, const QStringList &ipports)
{
    const QString password = data.value(QStringLiteral("password")).toString();
    if (command == QLatin1String("cancelLogin"))
        m_keptLogins.letAllGo();
    else if (command == QLatin1String("loginCheck"))
        checkPasswords(ipports, password);
    else if (command == QLatin1String("modifyPassword"))
        modifyPasswords(ipports, password);
    else
        performOn(ipports, command, data);
}

void CDeviceDH::performOn(const QStringList &ipports, const QString &command, const QVariantMap &data)
{
    const std::optional<SystemAction> action = systemAction(m_libraries, command, data);
    if (!action)
        qCWarning(logDevice) << "System configuration that cannot be carried out:" << command;
    // What no device could accept is not sent, but a device that cannot be logged in to still says so.
    const SystemAction perform = action.value_or([](std::int64_t) { return false; });
    for (const QString &ipport : ipports) {
        // Nothing comes between a device and its firmware.
        const int result =
            isUpgradingAt(ipport) ? resultCode(LoginResult::Upgrading) : performOn(ipport, perform);
        Q_EMIT signalCDeviceRetToSystemConfig(ipport, result);
    }
}

int CDeviceDH::performOn(const QString &ipport, const SystemAction &action)
{
    const Credentials credentials = credentialsOf(ipport);
    const SecureLogin login =
        secureLogin(m_libraries.net.get(), ipport, credentials.account, credentials.password);
    if (login.result != LoginResult::Success)
        return resultCode(login.result);
    const bool isAccepted = action(login.handle);
    m_libraries.net->NetLogout(login.handle);
    return isAccepted ? resultCode(LoginResult::Success) : refusedByDevice;
}

void CDeviceDH::checkPasswords(const QStringList &ipports, const QString &password)
{
    bool hasPassed = false;
    for (const QString &ipport : ipports) {
        m_keptLogins.letGo(ipport);
        if (isUpgradingAt(ipport)) {
            Q_EMIT signalCDeviceRetToSystemConfig(ipport, resultCode(LoginResult::Upgrading));
            continue;
        }
        const QString account = credentialsOf(ipport).account;
        const SecureLogin login = secureLogin(m_libraries.net.get(), ipport, account, password);
        if (login.result == LoginResult::Success) {
            m_keptLogins.keep(ipport,
                              {.loginHandle = login.handle, .account = account, .password = password});
            hasPassed = true;
            Q_EMIT signalCDeviceRetToSystemConfig(ipport, waitsForNewPassword);
        } else {
            Q_EMIT signalCDeviceRetToSystemConfig(ipport, resultCode(login.result));
        }
    }
    if (hasPassed)
        Q_EMIT signalCDeviceSystemConfigEnablePassword();
}

void CDeviceDH::modifyPasswords(const QStringList &ipports, const QString &newPassword)
{
    for (const QString &ipport : ipports) {
        KeptLogin *login = m_keptLogins.find(ipport);
        if (!login)
            continue;
        if (isUpgradingAt(ipport)) { // it is logged in to again when it comes back
            Q_EMIT signalCDeviceRetToSystemConfig(ipport, resultCode(LoginResult::Upgrading));
            continue;
        }
        const bool isChanged = changePassword(*m_libraries.net, *login, newPassword);
        if (isChanged) {
            login->password = newPassword;
            store().changeRowAt(ipport, [login](QJsonObject &row) {
                row.insert(DeviceRowKey::username, login->account);
                row.insert(DeviceRowKey::password, login->password);
            });
        }
        Q_EMIT signalCDeviceRetToSystemConfig(ipport,
                                              isChanged ? resultCode(LoginResult::Success) : refusedByDevice);
    }
}

CDeviceDH::Credentials CDeviceDH::credentialsOf(const QString &ipport) const
{
    return credentialsOf(store().rowAt(ipport));
}

CDeviceDH::Credentials CDeviceDH::credentialsOf(const QJsonObject &row) const
{
    const QString account = row.value(DeviceRowKey::username).toString();
    const QString password = row.value(DeviceRowKey::password).toString();
    return {.account = account.isEmpty() ? m_defaultAccount : account,
            .password = password.isEmpty() ? m_defaultPassword : password};
}
