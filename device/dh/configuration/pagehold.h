// Keeping the steps of batches away from a device that a page works with.
#pragma once

#include "device/batch/batchengine.h"
#include "device/registry/devicestep.h"
#include "device/registry/upgradecheck.h"

#include <memory>

class DeviceStore;

/// Thread-safe.
class PageHold
{
public:
    PageHold(std::shared_ptr<DeviceStore> store, std::shared_ptr<BatchEngine> engine,
             UpgradeCheck isUpgradingAt);

    /// On any thread but the scene's: it waits for the step that runs, until `control` is stopped.
    [[nodiscard]] BatchEngine::Hold hold(const QString &ipport, const StepControl &control) const;

    /// Whether the firmware of the device is being upgraded.
    [[nodiscard]] bool isUpgradingAt(const QString &ipport) const { return m_isUpgradingAt(ipport); }

private:
    const std::shared_ptr<DeviceStore> m_store;
    const std::shared_ptr<BatchEngine> m_engine;
    const UpgradeCheck m_isUpgradingAt;
};
