#include "device/dh/system/systemoperations.h"

#include "device/dh/logins/devicelogins.h"
#include "device/dh/session/sessionthreads.h"
#include "device/dh/system/deviceclock.h"
#include "device/dh/system/systemaction.h"
#include "device/registry/systemkeys.h"
#include "device/store/devicerow.h"
#include "device/store/devicestore.h"
#include "device/store/logging.h"
#include "sdk/blocktext.h"
#include "sdk/netlibrary.h"

#include <QDateTime>

#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr int waitsForNewPassword = -1; ///< result of "loginCheck": the old password is correct
constexpr auto passwordWait = 10000ms;

/// Returns false if the text is too long for the field: a truncated password would be wrong.
bool putComplete(auto &field, const QString &text)
{
    const QByteArray bytes = text.toLocal8Bit();
    sdk::setBlockText(field, bytes.toStdString());
    return static_cast<std::size_t>(bytes.size()) < field.size();
}

/// Returns the error of the library, 0 on success.
std::uint32_t changePassword(sdk::NetLibrary &net, const KeptLogin &login, const QString &newPassword)
{
    sdk::ModifyPasswordInput input{};
    input.size = sizeof(input);
    const bool fits = putComplete(input.account, login.account) &&
                      putComplete(input.oldPassword, login.password) &&
                      putComplete(input.newPassword, newPassword);
    if (!fits || newPassword.isEmpty())
        return static_cast<std::uint32_t>(sdk::NetError::InvalidValue);
    return net.NetModifyPassword(login.loginHandle, input, passwordWait) ? 0 : net.NetGetLastError();
}

/// Reason of a refusal in the user's language; empty if the error is not specific.
QString reasonOf(std::uint32_t libraryError)
{
    const LoginResult result = loginResultOf(libraryError);
    const bool saysMore = result == LoginResult::NotSupported || result == LoginResult::InvalidValue ||
                          result == LoginResult::SessionEnded;
    return saysMore ? resultName(resultCode(result)) : QString();
}

} // namespace

SystemOperations::SystemOperations(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries,
                                   const DeviceLogins &logins, SessionThreads &threads,
                                   UpgradeCheck isUpgradingAt, BackEndSignals &backEndSignals)
    : m_store(std::move(store)), m_libraries(std::move(libraries)), m_logins(logins), m_threads(threads),
      m_isUpgradingAt(std::move(isUpgradingAt)), m_signals(backEndSignals), m_keptLogins(m_libraries.net)
{
}

void SystemOperations::run(const QString &command, const QVariantMap &data, const QStringList &ipports)
{
    if (command == SystemCommand::cancelLogin) {
        m_threads.logOutLater(m_keptLogins.takeAll());
        return;
    }
    bool hasPassed = false;
    for (const QString &ipport : ipports) {
        if (command == SystemCommand::modifyPassword && !m_keptLogins.find(ipport))
            continue;
        const int result = step(command, data, ipport)(StepControl()).result;
        hasPassed = hasPassed || result == waitsForNewPassword;
        m_signals.emitNow<&CDeviceBase::signalCDeviceRetToSystemConfig>(ipport, result);
    }
    if (hasPassed)
        m_signals.emitNow<&CDeviceBase::signalCDeviceSystemConfigEnablePassword>();
}

DeviceStep SystemOperations::step(const QString &command, const QVariantMap &data, const QString &ipport)
{
    const QString password = data.value(SystemDataKey::password).toString();
    const DeviceAccount credentials = m_logins.accountAt(ipport);
    DeviceStep perform;
    if (command == SystemCommand::loginCheck)
        perform = [this, ipport, account = credentials.account, password](const StepControl &) {
            return StepOutcome{.result = checkPassword(ipport, account, password), .text = {}};
        };
    else if (command == SystemCommand::modifyPassword)
        perform = [this, ipport, password](const StepControl &) {
            return modifyPassword(ipport, password);
        };
    else if (command == SystemCommand::readTime)
        perform = [this, ipport, credentials](const StepControl &control) {
            return readClock(ipport, credentials, control);
        };
    else
        perform = [this, command, data, ipport, credentials](const StepControl &control) {
            return performOn(ipport, credentials, command, data, control);
        };
    return [this, ipport, perform](const StepControl &control) {
        // Requests could disturb the upgrade.
        if (m_isUpgradingAt(ipport))
            return StepOutcome{.result = resultCode(LoginResult::Upgrading), .text = {}};
        return perform(control);
    };
}

StepOutcome SystemOperations::performOn(const QString &ipport, const DeviceAccount &credentials,
                                        const QString &command, const QVariantMap &data,
                                        const StepControl &control)
{
    return m_logins.inLogin(ipport, credentials, control, [&](sdk::LLONG loginHandle) {
        QVariantMap values = data;
        if (data.value(SystemDataKey::timeOfRequest).toBool())
            values.insert(SystemDataKey::time,
                          QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")));
        // Invalid data is not sent. The login is made nevertheless, so that a failed login is reported.
        const std::optional<SystemAction> action = systemAction(m_libraries, command, values);
        if (!action)
            qCWarning(logDevice) << "System configuration that cannot be carried out:" << command;
        const std::uint32_t error = action ? (*action)(loginHandle) : 0;
        const bool isDone = action && error == 0;
        StepOutcome outcome = {.result = isDone ? resultCode(LoginResult::Success) : refusedByDevice,
                               .text = {}};
        outcome.hasNoResponse = isDeviceAway(error);
        outcome.text = outcome.hasNoResponse ? tr("设备没有应答") : reasonOf(error);
        return outcome;
    });
}

StepOutcome SystemOperations::readClock(const QString &ipport, const DeviceAccount &credentials,
                                        const StepControl &control)
{
    return m_logins.inLogin(ipport, credentials, control, [this](sdk::LLONG loginHandle) {
        StepOutcome outcome = {.result = resultCode(LoginResult::Success), .text = {}};
        std::uint32_t error = 0;
        if (const std::optional<QDateTime> time = readDeviceClock(*m_libraries.net, loginHandle, error)) {
            outcome.text = deviceClockText(*time, QDateTime::currentDateTime());
        } else {
            outcome.result = refusedByDevice;
            outcome.hasNoResponse = isDeviceAway(error);
            outcome.text = outcome.hasNoResponse ? tr("设备没有应答") : tr("没有读到设备的时间");
        }
        return outcome;
    });
}

int SystemOperations::checkPassword(const QString &ipport, const QString &account, const QString &password)
{
    m_keptLogins.close(ipport);
    const SecureLogin login = m_logins.logIn(ipport, {.account = account, .password = password});
    if (login.result != LoginResult::Success)
        return resultCode(login.result);
    m_keptLogins.keep(ipport, {.loginHandle = login.handle, .account = account, .password = password});
    return waitsForNewPassword;
}

StepOutcome SystemOperations::modifyPassword(const QString &ipport, const QString &newPassword)
{
    const std::optional<KeptLogin> login = m_keptLogins.find(ipport);
    if (!login)
        return {.result = resultCode(LoginResult::NotDone), .text = {}};
    if (const std::uint32_t error = changePassword(*m_libraries.net, *login, newPassword)) {
        StepOutcome outcome = {.result = refusedByDevice, .text = {}};
        outcome.hasNoResponse = isDeviceAway(error);
        if (outcome.hasNoResponse)
            outcome.text = tr("设备没有应答，密码可能已修改");
        return outcome;
    }
    m_keptLogins.setPassword(ipport, newPassword);
    m_store->changeRowAt(ipport, [&](QJsonObject &row) {
        row.insert(DeviceRowKey::username, login->account);
        row.insert(DeviceRowKey::password, newPassword);
    });
    return {};
}
