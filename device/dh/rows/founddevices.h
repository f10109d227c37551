// Requests to devices that a search has found: the first password, and a new address.
#pragma once

#include "device/accounts/accountchoice.h"
#include "device/registry/devicestep.h"
#include "device/registry/upgradecheck.h"
#include "sdk/sdklibraries.h"

#include <QCoreApplication>

#include <memory>

class DeviceLogins;
class DeviceStore;

/// The requests need no session: they go where the search record leads. Their results stand in "res" of the
/// rows. Lives on the scene's thread; its steps run on any other.
class FoundDevices
{
    Q_DECLARE_TR_FUNCTIONS(FoundDevices)
public:
    /// `isUpgrading` takes the names of rows.
    FoundDevices(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries, const DeviceLogins &logins,
                 UpgradeCheck isUpgrading);

    /// Blocks for the device; any thread.
    StepOutcome giveFirstPassword(const QString &mac, const QString &account, const QString &password);

    /// Of giveFirstPassword(), for a device that a search has found.
    [[nodiscard]] DeviceStep firstPasswordStep(const QString &mac, const QString &account,
                                               const QString &password);

    /// A device that is being upgraded is not asked; "res" says so. Blocks for the device.
    void changeAddress(const QString &mac, const QString &newip, const QString &newsubmask,
                       const QString &newgateway, bool dhcpON);

    /// Of changeAddress(), for a device that a search has found.
    [[nodiscard]] DeviceStep addressStep(const QString &mac, const QString &newip, const QString &newsubmask,
                                         const QString &newgateway, bool dhcpON);

private:
    // On any thread.

    /// Whether a search has reported how the device is reached without a login.
    [[nodiscard]] bool isFound(const QString &mac) const;
    StepOutcome requestAddress(const QString &mac, const QString &newip, const QString &newsubmask,
                               const QString &newgateway, bool dhcpON, const DeviceAccount &credentials,
                               const StepControl &control);
    StepOutcome noteNotFound(const QString &mac);
    /// Writes "res" of the device's row.
    StepOutcome noteResult(const QString &mac, LoginResult result);

    const std::shared_ptr<DeviceStore> m_store;
    const sdk::SdkLibraries m_libraries;
    const DeviceLogins &m_logins;
    const UpgradeCheck m_isUpgrading;
};
