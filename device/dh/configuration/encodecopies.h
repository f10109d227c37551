// Copying the encode settings of the current session's device to others.
#pragma once

#include "device/dh/encode/encodecopy.h"
#include "device/registry/backendsignals.h"
#include "device/registry/devicestep.h"
#include "device/registry/upgradecheck.h"
#include "sdk/sdklibraries.h"

#include <QCoreApplication>
#include <QStringList>

#include <memory>

class CurrentSession;
class DeviceLogins;
class DeviceStore;
struct DeviceAccount;

/// The settings of the current channel go to the channel of the same number of each device. What a device
/// cannot do is skipped, and named in its row's "result". Lives on the scene's thread; its steps run on any
/// other.
class EncodeCopies
{
    Q_DECLARE_TR_FUNCTIONS(EncodeCopies)
public:
    EncodeCopies(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries, const DeviceLogins &logins,
                 UpgradeCheck isUpgradingAt, const CurrentSession &session, BackEndSignals &backEndSignals);

    /// Blocks for the devices, which are named by address and port.
    void copyTo(const QStringList &devices);

    /// Of copyTo(), as CDeviceBase::encodeCopy().
    [[nodiscard]] DeviceStepMaker steps();

private:
    /// On any thread.
    [[nodiscard]] EncodeCopyOutcome copyTo(const QString &ipport, const DeviceAccount &credentials,
                                           const EncodeState &state, const ChannelChoice &channels,
                                           const StepControl &control) const;

    const std::shared_ptr<DeviceStore> m_store;
    const sdk::SdkLibraries m_libraries;
    const DeviceLogins &m_logins;
    const UpgradeCheck m_isUpgradingAt;
    const CurrentSession &m_session;
    BackEndSignals &m_signals;
};
