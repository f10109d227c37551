#include "sdk/demo/site/demosessions.h"

#include <utility>

namespace sdk::demo {

std::int64_t DemoSessions::open(const DemoSession &session)
{
    const std::lock_guard lock(m_mutex);
    DemoSession &opened = m_sessions.emplace(++m_lastHandle, Entry{session, {}}).first->second.session;
    opened.handle = m_lastHandle;
    return m_lastHandle;
}

bool DemoSessions::close(std::int64_t handle)
{
    std::unique_lock lock(m_mutex);
    const auto closed = m_sessions.extract(handle);
    lock.unlock(); // a stop callback may look its session up
    return closed && closed.mapped().calls.request_stop();
}

bool DemoSessions::cancelCalls(std::int64_t handle)
{
    std::unique_lock lock(m_mutex);
    const auto found = m_sessions.find(handle);
    if (found == m_sessions.end())
        return false;
    std::stop_source calls = std::exchange(found->second.calls, std::stop_source());
    lock.unlock();
    return calls.request_stop();
}

void DemoSessions::closeAll()
{
    const std::lock_guard lock(m_mutex);
    m_sessions.clear();
}

void DemoSessions::setPassword(std::int64_t handle, const QString &password)
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_sessions.find(handle);
    if (found != m_sessions.end())
        found->second.session.password = password;
}

void DemoSessions::endSessionsTo(const QString &mac)
{
    const std::lock_guard lock(m_mutex);
    for (auto &[handle, entry] : m_sessions) {
        if (entry.session.mac == mac)
            entry.session.hasEnded = true;
    }
}

std::optional<DemoSession> DemoSessions::session(std::int64_t handle) const
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_sessions.find(handle);
    if (found == m_sessions.end())
        return std::nullopt;
    DemoSession session = found->second.session;
    session.calls = found->second.calls.get_token();
    return session;
}

} // namespace sdk::demo
