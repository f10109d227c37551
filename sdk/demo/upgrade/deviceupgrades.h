// The upgrades of all sessions of the simulated network library.
#pragma once

#include "sdk/demo/upgrade/deviceupgrade.h"

#include <map>
#include <memory>

namespace sdk::demo {

/// Owns the upgrades. Thread-safe. Handles are not reused. The handler of an upgrade runs on the thread of
/// that upgrade. The destructor must not run in a handler: it ends the upgrades as closeAll().
class DeviceUpgrades
{
public:
    /// The result of close().
    enum class Closing
    {
        Closed,    ///< the transfer was cancelled, or the upgrade had ended; the handle is invalid now
        IsWriting, ///< nothing changed: the device is writing, and the handle is still valid
        Unknown,   ///< unknown handle
    };

    /// `site` and `sessions` must outlive this object.
    DeviceUpgrades(SiteState &site, DemoSessions &sessions) : m_site(site), m_sessions(sessions) {}

    /// True while an upgrade of the device runs, also after the end of its session. Already false while the
    /// handler is called with Done or Failed.
    [[nodiscard]] bool isUpgrading(const QString &mac) const;

    /// Starts an upgrade. Returns its handle, which is valid until it is closed, also after the end of the
    /// upgrade; 0 if the host provides no thread. Does not check isUpgrading().
    [[nodiscard]] std::int64_t open(const UpgradeOrder &order);

    /// The MAC of the device; empty for an unknown handle.
    [[nodiscard]] QString macOf(std::int64_t handle) const;

    // The next three wait for running handlers: no handler of a closed upgrade runs after the return. So they
    // must not be called from a handler.

    /// Closes one upgrade.
    [[nodiscard]] Closing close(std::int64_t handle);

    /// Closes the upgrades of a session: their handles are unknown then. Transfers are cancelled. A device
    /// that is writing continues without reports.
    void closeAllOf(std::int64_t loginHandle);

    /// Ends all upgrades, also of devices that are writing: these keep their firmware.
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
