// The commands of the system page.
#pragma once

#include "device/dh/session/keptlogins.h"
#include "device/registry/backendsignals.h"
#include "device/registry/devicestep.h"
#include "device/registry/upgradecheck.h"
#include "sdk/sdklibraries.h"

#include <QCoreApplication>
#include <QStringList>
#include <QVariantMap>

#include <memory>

class DeviceLogins;
class DeviceStore;
class SessionThreads;
struct DeviceAccount;

/// Runs a maintenance command (a SystemCommand) on one device or many. The data have the keys of
/// SystemDataKey. Lives on the main thread; its steps run on any thread.
class SystemOperations
{
    Q_DECLARE_TR_FUNCTIONS(SystemOperations)
public:
    /// The referenced objects must outlive this object, which must outlive its steps.
    SystemOperations(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries,
                     const DeviceLogins &logins, SessionThreads &threads, UpgradeCheck isUpgradingAt,
                     BackEndSignals &backEndSignals);

    /// Runs a command on each device, one after another, and blocks for the devices. Emits
    /// signalCDeviceRetToSystemConfig with the result of each: 0, the result of a failed login, Upgrading
    /// (without a request), or 999 (refusedByDevice) for a refusal, no response, an unknown command or
    /// invalid data.
    ///
    /// "loginCheck" logs in with the password in `data`. It keeps a successful login open for
    /// "modifyPassword" (result -1), and emits signalCDeviceSystemConfigEnablePassword at the end if there
    /// is one. "modifyPassword" skips devices without such a login, without a signal. After a success it
    /// writes account and new password to the device's row; the login stays open. "cancelLogin" closes all
    /// of these logins in the background; it ignores `ipports`.
    void run(const QString &command, const QVariantMap &data, const QStringList &ipports);

    /// The step of a command for one device, with the results of run(), and NotDone if its StepControl ends
    /// it before the command is sent; "loginCheck" and "modifyPassword" ignore the StepControl. It uses the
    /// account that the device has at this call. "readTime" reads the clock of the device: the text of the
    /// outcome is its time, compared with the host's. "modifyPassword" without an open login of "loginCheck"
    /// returns NotDone. "cancelLogin" has no step: it counts as an unknown command.
    [[nodiscard]] DeviceStep step(const QString &command, const QVariantMap &data, const QString &ipport);

    /// Closes the logins that "loginCheck" has kept open. Blocks for the devices.
    void closeLogins() { m_keptLogins.closeAll(); }

private:
    // Any thread; blocks for the timeouts of the library.
    [[nodiscard]] StepOutcome readClock(const QString &ipport, const DeviceAccount &credentials,
                                        const StepControl &control);
    [[nodiscard]] StepOutcome performOn(const QString &ipport, const DeviceAccount &credentials,
                                        const QString &command, const QVariantMap &data,
                                        const StepControl &control);
    /// Returns a LoginResult, or -1 if the password is correct; the login is kept open then.
    [[nodiscard]] int checkPassword(const QString &ipport, const QString &account, const QString &password);
    [[nodiscard]] StepOutcome modifyPassword(const QString &ipport, const QString &newPassword);

    const std::shared_ptr<DeviceStore> m_store;
    const sdk::SdkLibraries m_libraries;
    const DeviceLogins &m_logins;
    SessionThreads &m_threads;
    const UpgradeCheck m_isUpgradingAt;
    BackEndSignals &m_signals;
    KeptLogins m_keptLogins;
};
