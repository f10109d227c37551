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

    /// See CDeviceBase::addingStep(). `ports` opens local ports to devices behind NAT; may be null.
    [[nodiscard]] DeviceStep addingStep(const DeviceToAdd &device,
                                        const std::shared_ptr<P2PPorts> &ports) const;

    // Operations of CDeviceBase; their names there are in the comments.

    /// updataDeviceInfo()
    bool update(const QString &key, const QVariant &newValue, const QString &mac, const QString &ipport);
    [[nodiscard]] QVariantMap accountOf(const QString &name) const;
    [[nodiscard]] QVariantMap rowAt(const QString &ipport) const;    ///< getDeviceInfo()
    [[nodiscard]] QJsonObject rowNamed(const QString &name) const;   ///< deviceRow()
    [[nodiscard]] QVariantMap detail(const QString &mac) const;      ///< getDeviceDetail()
    [[nodiscard]] QVariantMap detailAt(const QString &ipport) const; ///< getDeviceDetailByAddress()
    [[nodiscard]] QVariantList filtered(const QString &filter, const QString &text) const; ///< filterData()
    [[nodiscard]] QVariantList filteredIPv6(const QString &filter,
                                            const QString &text) const; ///< filterDataIPV6()

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
