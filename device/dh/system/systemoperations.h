// System configuration: one maintenance action on each device of a list.
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

/// Lives on the scene's thread; its steps run on any other.
class SystemOperations
{
    Q_DECLARE_TR_FUNCTIONS(SystemOperations)
public:
    SystemOperations(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries,
                     const DeviceLogins &logins, SessionThreads &threads, UpgradeCheck isUpgradingAt,
                     BackEndSignals &backEndSignals);

    /// "cancelLogin" forgets the logins at once and does not wait for their end.
    /// Each device gets its result by signalCDeviceRetToSystemConfig: 0, the failure of its login, or 999
    /// when it refuses, also for an unknown command and for data that make no sense. `loginCheck` keeps
    /// logins open (their result is -1) for `modifyPassword`, until `cancelLogin`. A device that is being
    /// upgraded is left alone: LoginResult::Upgrading. Blocks for the devices.
    void run(const QString &command, const QVariantMap &data, const QStringList &ipports);

    /// Of run(), for one device, as CDeviceBase::systemStep().
    [[nodiscard]] DeviceStep step(const QString &command, const QVariantMap &data, const QString &ipport);

    /// Logs out what `loginCheck` has kept.
    void letLoginsGo() { m_keptLogins.letAllGo(); }

private:
    // On any thread, and block it for the waits of the library.
    [[nodiscard]] StepOutcome readClock(const QString &ipport, const DeviceAccount &credentials,
                                        const StepControl &control);
    [[nodiscard]] StepOutcome performOn(const QString &ipport, const DeviceAccount &credentials,
                                        const QString &command, const QVariantMap &data,
                                        const StepControl &control);
    /// Returns a result.
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
