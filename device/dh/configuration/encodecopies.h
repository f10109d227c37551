// Copies the encode settings of the current session's device to other devices.
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

/// Copies the encode settings of the current channel to the channel with the same number of each device. The
/// settings are those that the current session has read at the time of the call, with changes of the page
/// that are not written yet: those of the selected kind of main stream, and of the sub stream. Settings that
/// a device does not support are skipped. "result" of the device's row lists them, and is empty otherwise.
/// Nothing is sent to a device that is being upgraded. Lives on the main thread; its steps run on any thread.
class EncodeCopies
{
    Q_DECLARE_TR_FUNCTIONS(EncodeCopies)
public:
    /// The referenced objects must outlive this object, which must outlive its steps.
    EncodeCopies(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries, const DeviceLogins &logins,
                 UpgradeCheck isUpgradingAt, const CurrentSession &session, BackEndSignals &backEndSignals);

    /// Copies to devices by address and port, one after another. Blocks for the devices. Emits
    /// signalCDeviceRetToCopyConfig with the result of each: that of a failed login, Upgrading, or that of
    /// copyEncodeSettings(); `capabilitiesUnknown` also if the current session has read no settings.
    void copyTo(const QStringList &devices);

    /// Makes the steps of copyTo() for single devices; they share the settings of this call. A step emits no
    /// signal: the text of its outcome lists the skipped settings.
    [[nodiscard]] DeviceStepMaker steps();

private:
    /// Any thread.
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
