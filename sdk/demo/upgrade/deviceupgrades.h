// The upgrades that are open.
#pragma once

#include "sdk/demo/upgrade/deviceupgrade.h"

#include <map>
#include <memory>

namespace sdk::demo {

/// Thread-safe. A handle is never given twice.
class DeviceUpgrades
{
public:
    enum class Closing
    {
        Closed,
        IsWriting, ///< it goes on
        Unknown,   ///< not the handle of an upgrade
    };

    /// Both must outlive the upgrades.
    DeviceUpgrades(SiteState &site, DemoSessions &sessions) : m_site(site), m_sessions(sessions) {}

    [[nodiscard]] bool isUpgrading(const QString &mac) const;

    /// Returns the handle, 0 when the computer gives no thread.
    [[nodiscard]] std::int64_t open(const UpgradeOrder &order);

    /// The MAC of the device; empty for a handle that is no upgrade.
    [[nodiscard]] QString macOf(std::int64_t handle) const;

    // No handler of what is closed runs after the return, so these must not be called from one.

    [[nodiscard]] Closing close(std::int64_t handle);

    /// Files on their way are dropped; a device that is writing goes on unheard.
    void closeAllOf(std::int64_t loginHandle);
    void closeAll();

private:
    using Upgrades = std::map<std::int64_t, std::shared_ptr<DeviceUpgrade>>;

    [[nodiscard]] Upgrades takeEndedLocked();

    SiteState &m_site;
    DemoSessions &m_sessions;
    mutable std::mutex m_mutex;
    // Above 32 bits, as those of sessions, and apart from them.
    std::int64_t m_lastHandle = std::int64_t(1) << 44;
    Upgrades m_upgrades;
    Upgrades m_unheard; ///< devices that write, whose session has ended
};

} // namespace sdk::demo
