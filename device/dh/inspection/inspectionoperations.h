// Reads the state of devices for the report of a site.
#pragma once

#include "device/registry/deviceinspection.h"
#include "device/registry/devicestep.h"
#include "device/registry/upgradecheck.h"
#include "sdk/sdklibraries.h"

#include <memory>

class ConfigSession;
class DeviceLogins;
class DeviceStore;

/// Lives on the main thread; its steps run on any thread.
class InspectionOperations
{
public:
    /// `logins` must outlive this object, which must outlive its steps. `isUpgradingAt` takes "address:port".
    InspectionOperations(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries,
                         const DeviceLogins &logins, UpgradeCheck isUpgradingAt);

    /// A step that logs in to the device with its account, reads its state, passes it to `order.inspected`
    /// (also if it is incomplete) and logs out. Its result is NotInitialised or Upgrading, without a request,
    /// the result of a failed login, NotDone after a stop at any time or a deadline before the login, or
    /// NetworkFailure if the device stops responding or the deadline passes later.
    [[nodiscard]] DeviceStep step(const InspectionOrder &order) const;

private:
    /// Reads the values of a device in a session, until it stops responding or `control` ends the step.
    /// Returns false in these cases.
    [[nodiscard]] bool read(const ConfigSession &session, const StepControl &control,
                            DeviceInspection &inspection) const;
    [[nodiscard]] bool readClock(const ConfigSession &session, DeviceInspection &inspection) const;

    const std::shared_ptr<DeviceStore> m_store;
    const sdk::SdkLibraries m_libraries;
    const DeviceLogins &m_logins;
    const UpgradeCheck m_isUpgradingAt;
};
