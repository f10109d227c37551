#include "sdk/demo/agentevents.h"

#include "sdk/clock.h"
#include "sdk/demo/site/logging.h"

#include <system_error>

namespace sdk::demo {

namespace {

thread_local bool insideEventHandler = false;

} // namespace

void AgentEvents::setHandler(P2PAgentMessageHandler handler, void *user)
{
    const std::lock_guard lock(m_mutex);
    m_handler = handler;
    m_user = user;
}

bool AgentEvents::start()
{
    try {
        // Counted from now, not from the start of the thread.
        const std::int64_t connected = m_clock.now() + connectTime.count();
        m_thread = std::jthread([this, connected](const std::stop_token &stop) { run(connected, stop); });
    } catch (const std::system_error &error) {
        qCWarning(demoLog, "No thread for the events of the port agent: %s", error.what());
        return false;
    }
    return true;
}

void AgentEvents::stop()
{
    if (!m_thread.joinable())
        return;
    m_thread.request_stop();
    m_thread.join();
    const std::lock_guard lock(m_mutex);
    m_entries.clear();
}

void AgentEvents::add(P2PAgentEvent event, const QByteArray &deviceId, int localPort)
{
    const std::lock_guard lock(m_mutex);
    m_entries.push_back({event, deviceId, localPort});
    m_added.notify_one();
}

bool AgentEvents::isInsideHandler()
{
    return insideEventHandler;
}

void AgentEvents::run(std::int64_t connected, const std::stop_token &stop)
{
    if (!m_clock.waitUntil(connected, stop))
        return;
    report({P2PAgentEvent::ServiceConnected, "", 0});
    for (;;) {
        std::unique_lock lock(m_mutex);
        m_added.wait(lock, stop, [this] { return !m_entries.empty(); });
        if (stop.stop_requested())
            return;
        const Entry entry = m_entries.front();
        m_entries.pop_front();
        lock.unlock();
        report(entry);
    }
}

void AgentEvents::report(const Entry &entry)
{
    std::unique_lock lock(m_mutex);
    const P2PAgentMessageHandler handler = m_handler;
    void *const user = m_user;
    lock.unlock();
    if (!handler)
        return;
    insideEventHandler = true;
    handler(entry.event, entry.deviceId.constData(), entry.localPort, user);
    insideEventHandler = false;
}

} // namespace sdk::demo
