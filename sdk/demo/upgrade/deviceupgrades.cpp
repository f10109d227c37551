#include "sdk/demo/upgrade/deviceupgrades.h"

#include "sdk/demo/site/logging.h"

#include <algorithm>
#include <system_error>
#include <vector>

namespace sdk::demo {

bool DeviceUpgrades::isUpgrading(const QString &mac) const
{
    const auto isOf = [&mac](const auto &entry) {
        return entry.second->order().session.mac == mac && !entry.second->hasEnded();
    };
    const std::lock_guard lock(m_mutex);
    return std::any_of(m_upgrades.begin(), m_upgrades.end(), isOf) ||
           std::any_of(m_detached.begin(), m_detached.end(), isOf);
}

DeviceUpgrades::Upgrades DeviceUpgrades::takeEnded()
{
    Upgrades ended;
    for (auto entry = m_detached.begin(); entry != m_detached.end();) {
        const auto next = std::next(entry);
        if (entry->second->hasEnded())
            ended.insert(m_detached.extract(entry));
        entry = next;
    }
    return ended;
}

std::int64_t DeviceUpgrades::open(const UpgradeOrder &order)
{
    Upgrades ended; // destroyed without the lock
    const std::lock_guard lock(m_mutex);
    ended = takeEnded();
    try {
        const std::int64_t handle = ++m_lastHandle;
        m_upgrades.emplace(handle, std::make_shared<DeviceUpgrade>(m_site, m_sessions, handle, order));
        return handle;
    } catch (const std::system_error &error) {
        qCWarning(demoLog, "No thread for an upgrade: %s", error.what());
        return 0;
    }
}

QString DeviceUpgrades::macOf(std::int64_t handle) const
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_upgrades.find(handle);
    return found == m_upgrades.end() ? QString() : found->second->order().session.mac;
}

DeviceUpgrades::Closing DeviceUpgrades::close(std::int64_t handle)
{
    Upgrades closed; // destroyed without the lock
    const std::lock_guard lock(m_mutex);
    const auto found = m_upgrades.find(handle);
    if (found == m_upgrades.end())
        return Closing::Unknown;
    if (!found->second->cancelTransfer())
        return Closing::IsWriting;
    closed.insert(m_upgrades.extract(found));
    return Closing::Closed;
}

void DeviceUpgrades::closeAllOf(std::int64_t loginHandle)
{
    Upgrades closed; // destroyed without the lock, which a handler may wait for
    std::vector<std::shared_ptr<DeviceUpgrade>> writing;
    {
        const std::lock_guard lock(m_mutex);
        for (auto entry = m_upgrades.begin(); entry != m_upgrades.end();) {
            const auto next = std::next(entry);
            if (entry->second->order().loginHandle == loginHandle) {
                const bool isCancelled = entry->second->cancelTransfer();
                if (!isCancelled)
                    writing.push_back(entry->second);
                (isCancelled ? closed : m_detached).insert(m_upgrades.extract(entry));
            }
            entry = next;
        }
    }
    for (const std::shared_ptr<DeviceUpgrade> &upgrade : writing)
        upgrade->clearHandler();
}

void DeviceUpgrades::closeAll()
{
    Upgrades closed;
    Upgrades detached; // destroyed without the lock
    const std::lock_guard lock(m_mutex);
    closed.swap(m_upgrades);
    detached.swap(m_detached);
}

} // namespace sdk::demo
