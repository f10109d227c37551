// Operations on the rows of the device list.
#pragma once

#include "device/registry/deviceimport.h"
#include "device/registry/devicestep.h"
#include "device/registry/upgradecheck.h"
#include "sdk/sdklibraries.h"

#include <QJsonObject>
#include <QVariantList>
#include <QVariantMap>

#include <memory>

class BackEndSignals;
class DeviceLogins;
class DeviceStore;
class P2PPorts;
struct RowLoginRequest;

/// Reads, changes, adds and removes rows of the device store. Rows are named by rowName(). Lives on the main
/// thread.
class RowOperations
{
public:
    /// The referenced objects must outlive this object. `isUpgrading` takes row names.
    RowOperations(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries, const DeviceLogins &logins,
                  UpgradeCheck isUpgrading, BackEndSignals &backEndSignals);

    /// Logs in to a device and adds its row, replacing an existing one. Emits
    /// signalCDeviceAddSingleDeviceToTable after a success. Returns a LoginResult. Blocks for the device.
    [[nodiscard]] int add(const RowLoginRequest &request);

    /// A step that logs in to the device and adds its row. The result is a LoginResult: AlreadyListed,
    /// without a request, if a row has the address and port of the device. `ports` opens local ports to
    /// devices behind NAT; null: such devices cannot be added (NetworkFailure). The store must outlive the
    /// step.
    [[nodiscard]] DeviceStep addingStep(const DeviceToAdd &device,
                                        const std::shared_ptr<P2PPorts> &ports) const;

    // Operations of CDeviceBase; their names there are in brackets. They send nothing to devices.

    /// Sets a value of the row `mac`, of either list, or without such a row of the first row at `ipport`.
    /// Returns whether there is such a row. A new "name" is signalled later (updataDeviceInfo).
    bool update(const QString &key, const QVariant &newValue, const QString &mac, const QString &ipport);
    /// The account that a login would use, a map of "account", "password", and the bools "isStored",
    /// "isDefault" and "isFollowing" (see AccountKey). `name` is the name of a row or an "address:port";
    /// without a row the default account is returned (accountOf).
    [[nodiscard]] QVariantMap accountOf(const QString &name) const;
    /// The IPv4 row at an address, with its password; empty if there is none (getDeviceInfo).
    [[nodiscard]] QVariantMap rowAt(const QString &ipport) const;
    /// The row of this name, of either list; empty if there is none (deviceRow).
    [[nodiscard]] QJsonObject rowNamed(const QString &name) const;
    /// The row of this name with values of its search record, without its password; empty if there is none
    /// (getDeviceDetail). The user name is that of the stored account if a login would use it.
    [[nodiscard]] QVariantMap detail(const QString &mac) const;
    /// The same for the IPv4 row at an address (getDeviceDetailByAddress).
    [[nodiscard]] QVariantMap detailAt(const QString &ipport) const;
    /// The IPv4 rows that pass a filter, see filteredRows() (filterData).
    [[nodiscard]] QVariantList filtered(const QString &filter, const QString &text) const;
    /// The same for the IPv6 rows (filterDataIPV6).
    [[nodiscard]] QVariantList filteredIPv6(const QString &filter, const QString &text) const;

    /// Removes the rows named by the keys of `macs` from the IPv4 list, or with `ipversion` "IPV6" from the
    /// IPv6 list. Keeps rows of devices that are being upgraded. Emits signalCDeviceAddSingleDeviceToTable.
    void remove(const QVariantMap &macs, const QString &ipversion);

private:
    const std::shared_ptr<DeviceStore> m_store;
    const sdk::SdkLibraries m_libraries;
    const DeviceLogins &m_logins;
    const UpgradeCheck m_isUpgrading;
    BackEndSignals &m_signals;
};
