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

/// Reads, changes, adds and removes rows. Rows are named by MAC, or by address and port without one. Lives on
/// the main thread.
class RowOperations
{
public:
    /// The referenced objects must outlive this object. `isUpgrading` takes row names.
    RowOperations(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries, const DeviceLogins &logins,
                  UpgradeCheck isUpgrading, BackEndSignals &backEndSignals);

    /// Logs in to a device and adds its row. Returns a LoginResult. Blocks for the device.
    [[nodiscard]] int add(const RowLoginRequest &request);

    /// See CDeviceBase::addingStep(). `ports` opens local ports to devices behind NAT; may be null.
    [[nodiscard]] DeviceStep addingStep(const DeviceToAdd &device,
                                        const std::shared_ptr<P2PPorts> &ports) const;

    // Operations of CDeviceBase with similar names (updataDeviceInfo(), getDeviceInfo(), deviceRow(), ...).

    bool update(const QString &key, const QVariant &newValue, const QString &mac, const QString &ipport);
    [[nodiscard]] QVariantMap accountOf(const QString &name) const;
    [[nodiscard]] QVariantMap rowAt(const QString &ipport) const;
    [[nodiscard]] QJsonObject rowNamed(const QString &name) const;
    [[nodiscard]] QVariantMap detail(const QString &mac) const;
    [[nodiscard]] QVariantMap detailAt(const QString &ipport) const;
    [[nodiscard]] QVariantList filtered(const QString &filter, const QString &text) const;
    [[nodiscard]] QVariantList filteredIPv6(const QString &filter, const QString &text) const;

    /// Removes the rows named by the keys of `macs`; with `ipversion` "IPV6" the keys are addresses and
    /// ports, since those rows have no MAC. Keeps rows of devices that are being upgraded.
    void remove(const QVariantMap &macs, const QString &ipversion);

private:
    const std::shared_ptr<DeviceStore> m_store;
    const sdk::SdkLibraries m_libraries;
    const DeviceLogins &m_logins;
    const UpgradeCheck m_isUpgrading;
    BackEndSignals &m_signals;
};
