// The open upgrades.
#pragma once

#include "sdk/demo/upgrade/deviceupgrade.h"

#include <map>
#include <memory>

namespace sdk::demo {

/// Thread-safe. Handles are not reused.
class DeviceUpgrades
{
public:
    enum class Closing
    {
        Closed,
        IsWriting, ///< the device continues
        Unknown,   ///< unknown handle
    };

    /// Both must outlive the upgrades.
    DeviceUpgrades(SiteState &site, DemoSessions &sessions) : m_site(site), m_sessions(sessions) {}

    /// True while an upgrade of the device runs, also after the end of its session.
    [[nodiscard]] bool isUpgrading(const QString &mac) const;

    /// Returns the handle, 0 if the host provides no thread.
    [[nodiscard]] std::int64_t open(const UpgradeOrder &order);

    /// The MAC of the device; empty for an unknown handle.
    [[nodiscard]] QString macOf(std::int64_t handle) const;

    // No handler of a closed upgrade runs after the return, so these must not be called from a handler.

    [[nodiscard]] Closing close(std::int64_t handle);

    /// Transfers are cancelled. A device that is writing continues without reports.
    void closeAllOf(std::int64_t loginHandle);
    /// Ends all upgrades, also of devices that are writing.
    void closeAll();

private:
    using Upgrades = std::map<std::int64_t, std::shared_ptr<DeviceUpgrade>>;

    /// Removes the detached upgrades that have ended, for destruction without the lock. Requires m_mutex.
    [[nodiscard]] Upgrades takeEnded();

    SiteState &m_site;
    DemoSessions &m_sessions;
    mutable std::mutex m_mutex;
    // Above 32 bits, and apart from the handles of sessions.
    std::int64_t m_lastHandle = std::int64_t(1) << 44;
    Upgrades m_upgrades;
    Upgrades m_detached; ///< devices that are writing and whose session has ended
};

} // namespace sdk::demo
