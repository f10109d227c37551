// The rows of devices: what they hold, and how they come and go without a search.
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

/// Rows are named by MAC, or by address and port where they have none. On the scene's thread.
class RowOperations
{
public:
    /// `isUpgrading` takes the names of rows.
    RowOperations(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries, const DeviceLogins &logins,
                  UpgradeCheck isUpgrading, BackEndSignals &backEndSignals);

    /// Logs in to a device and adds its row. Returns a LoginResult. Blocks for the device.
    [[nodiscard]] int add(const RowLoginRequest &request);

    /// The same as CDeviceBase::addingStep(). `ports` leads to devices behind NAT, null when nothing does; it
    /// lives longer than the step.
    [[nodiscard]] DeviceStep addingStep(const DeviceToAdd &device, P2PPorts *ports) const;

    // The following are the operations of CDeviceBase that have such names.

    bool update(const QString &key, const QVariant &newValue, const QString &mac, const QString &ipport);
    [[nodiscard]] QVariantMap accountOf(const QString &name) const;
    [[nodiscard]] QVariantMap rowAt(const QString &ipport) const;
    [[nodiscard]] QJsonObject rowNamed(const QString &name) const;
    [[nodiscard]] QVariantMap detail(const QString &mac) const;
    [[nodiscard]] QVariantMap detailAt(const QString &ipport) const;
    [[nodiscard]] QVariantList filtered(const QString &filter, const QString &text) const;
    [[nodiscard]] QVariantList filteredIPv6(const QString &filter, const QString &text) const;

    /// The keys of `macs` name the rows; they are addresses and ports when `ipversion` is "IPV6", whose rows
    /// have no MAC. A row whose device is being upgraded stays.
    void remove(const QVariantMap &macs, const QString &ipversion);

private:
    const std::shared_ptr<DeviceStore> m_store;
    const sdk::SdkLibraries m_libraries;
    const DeviceLogins &m_logins;
    const UpgradeCheck m_isUpgrading;
    BackEndSignals &m_signals;
};
