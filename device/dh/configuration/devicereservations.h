// Reserves a device for a page.
#pragma once

#include "device/batch/batchengine.h"
#include "device/registry/devicestep.h"
#include "device/registry/upgradecheck.h"

#include <memory>

class DeviceStore;

/// Reservations of devices against batch steps. Thread-safe.
class DeviceReservations
{
public:
    DeviceReservations(std::shared_ptr<DeviceStore> store, std::shared_ptr<BatchEngine> engine,
                       UpgradeCheck isUpgradingAt);

    /// Reserves a device; blocks until its running batch step ends. Returns an empty reservation during an
    /// upgrade, and if `control` is stopped or the engine ends before. Any thread.
    [[nodiscard]] BatchEngine::Reservation reserve(const QString &ipport, const StepControl &control) const;

    /// Whether the firmware of the device is being upgraded.
    [[nodiscard]] bool isUpgradingAt(const QString &ipport) const { return m_isUpgradingAt(ipport); }

private:
    const std::shared_ptr<DeviceStore> m_store;
    const std::shared_ptr<BatchEngine> m_engine;
    const UpgradeCheck m_isUpgradingAt;
};
