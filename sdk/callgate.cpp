#include "sdk/callgate.h"

namespace sdk {

CallGate::Call::Call(CallGate &gate) : m_gate(gate)
{
    const std::lock_guard lock(gate.m_mutex);
    m_isAllowed = gate.m_isOpen;
    m_stop = gate.m_stop.get_token();
    ++gate.m_runningCalls;
}

CallGate::Call::~Call()
{
    const std::lock_guard lock(m_gate.m_mutex);
    --m_gate.m_runningCalls;
    m_gate.m_callEnded.notify_all();
}

void CallGate::open()
{
    const std::lock_guard lock(m_mutex);
    if (!m_isOpen)
        m_stop = std::stop_source();
    m_isOpen = true;
}

void CallGate::close()
{
    std::unique_lock lock(m_mutex);
    m_isOpen = false;
    // A copy, and without the lock: stop callbacks may end their calls, which locks the mutex.
    std::stop_source stop = m_stop;
    lock.unlock();
    stop.request_stop();
    lock.lock();
    m_callEnded.wait(lock, [this] { return m_runningCalls == 0; });
}

} // namespace sdk
