#include "sdk/demo/internal/demosessions.h"

namespace sdk::demo {

std::int64_t DemoSessions::open(const DemoSession &session)
{
    const std::lock_guard lock(m_mutex);
    m_sessions.emplace(++m_lastHandle, session);
    return m_lastHandle;
}

bool DemoSessions::close(std::int64_t handle)
{
    const std::lock_guard lock(m_mutex);
    return m_sessions.erase(handle) == 1;
}

void DemoSessions::closeAll()
{
    const std::lock_guard lock(m_mutex);
    m_sessions.clear();
}

void DemoSessions::breakSessionsTo(const QString &mac)
{
    const std::lock_guard lock(m_mutex);
    for (auto &entry : m_sessions) {
        if (entry.second.mac == mac)
            entry.second.isBroken = true;
    }
}

std::optional<DemoSession> DemoSessions::session(std::int64_t handle) const
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_sessions.find(handle);
    return found == m_sessions.end() ? std::nullopt : std::optional(found->second);
}

} // namespace sdk::demo
