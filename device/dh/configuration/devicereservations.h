// Reserves a device for a page.
#pragma once

#include "device/batch/batchengine.h"
#include "device/registry/devicestep.h"
#include "device/registry/upgradecheck.h"

#include <memory>

class DeviceStore;

/// Reserves a device, so that no batch step runs on it. Reservations do not exclude each other. Thread-safe.
class DeviceReservations
{
public:
    DeviceReservations(std::shared_ptr<DeviceStore> store, std::shared_ptr<BatchEngine> engine,
                       UpgradeCheck isUpgradingAt);

    /// Reserves a device for the lifetime of the result. Blocks until the running batch step of the device
    /// ends; its further steps wait for the end of the reservation. Returns an empty reservation, which
    /// reserves nothing, immediately if the device is being upgraded, and if a stop of `control` is requested
    /// or the engine ends during the wait. The deadline of `control` has no effect. Any thread.
    [[nodiscard]] BatchEngine::Reservation reserve(const QString &ipport, const StepControl &control) const;

    /// Whether the firmware of the device with this address and port is being upgraded. Any thread.
    [[nodiscard]] bool isUpgradingAt(const QString &ipport) const { return m_isUpgradingAt(ipport); }

private:
    const std::shared_ptr<DeviceStore> m_store;
    const std::shared_ptr<BatchEngine> m_engine;
    const UpgradeCheck m_isUpgradingAt;
};
