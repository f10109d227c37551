// Requests to found devices that need no login: initialisation and address changes.
#pragma once

#include "device/accounts/accountchoice.h"
#include "device/registry/devicestep.h"
#include "device/registry/upgradecheck.h"
#include "sdk/sdklibraries.h"

#include <QCoreApplication>

#include <memory>

class DeviceLogins;
class DeviceStore;

/// Sends requests to devices that a search has found, using their search records (the stored search
/// responses, see DeviceStore::record()). `mac` is the name of an IPv4 row, see rowName(). Writes the result
/// of each request, a LoginResult, to "res" of that row. Functions that return a StepOutcome also return it.
/// Lives on the main thread; its steps run on any thread.
class FoundDevices
{
    Q_DECLARE_TR_FUNCTIONS(FoundDevices)
public:
    /// The referenced objects must outlive this object, which must outlive its steps. `isUpgrading`
    /// takes row names.
    FoundDevices(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries, const DeviceLogins &logins,
                 UpgradeCheck isUpgrading);

    /// Initialises a device: creates its first account. After a success the account is set in the device's
    /// row. Any thread; blocks for the device. If the device has no search record, or there is no network
    /// library, no request is sent and the result is Success.
    StepOutcome initialise(const QString &mac, const QString &account, const QString &password);

    /// Step of initialise(). NotSupported, without a request, if no search has found the device or its
    /// record has neither MAC nor UUID.
    [[nodiscard]] DeviceStep initialisationStep(const QString &mac, const QString &account,
                                                const QString &password);

    /// Changes the address of a device. The row then has the new address, with DHCP an empty one, even if
    /// the device refuses the request or does not respond: "unconfirmed" of the row is true then. Without a
    /// request, and with an unchanged address, the result is Upgrading during an upgrade and NotInitialised
    /// for a device that is not initialised. If the device has no search record, or there is no network
    /// library, no request is sent, and the row and the result are as after a success. The texts are ignored
    /// with `dhcpON`. Any thread; blocks for the device.
    void changeAddress(const QString &mac, const QString &newip, const QString &newsubmask,
                       const QString &newgateway, bool dhcpON);

    /// Step of changeAddress(), with the account that the device has at this call. NotSupported, without a
    /// request, if no search has found the device or its record has neither MAC nor UUID. NotDone, with an
    /// unchanged address, if the step ends before the request is sent.
    [[nodiscard]] DeviceStep addressStep(const QString &mac, const QString &newip, const QString &newsubmask,
                                         const QString &newgateway, bool dhcpON);

private:
    // Any thread.

    /// Whether the device's search record has a MAC or UUID, which the requests need.
    [[nodiscard]] bool isFound(const QString &mac) const;
    StepOutcome requestAddress(const QString &mac, const QString &newip, const QString &newsubmask,
                               const QString &newgateway, bool dhcpON, const DeviceAccount &credentials,
                               const StepControl &control);
    /// Writes the result for a device that no search has found.
    StepOutcome noteNotFound(const QString &mac);
    /// Writes "res" of the device's row.
    StepOutcome noteResult(const QString &mac, LoginResult result);

    const std::shared_ptr<DeviceStore> m_store;
    const sdk::SdkLibraries m_libraries;
    const DeviceLogins &m_logins;
    const UpgradeCheck m_isUpgrading;
};
