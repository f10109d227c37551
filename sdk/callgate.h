// Lets calls into a library while it is open, and tells when the last of them has ended.
#pragma once

#include <condition_variable>
#include <mutex>
#include <stop_token>

namespace sdk {

/// Thread-safe.
class CallGate
{
public:
    /// One call between its begin and its end.
    class Call
    {
    public:
        explicit Call(CallGate &gate);
        ~Call();
        Call(const Call &) = delete;
        Call &operator=(const Call &) = delete;

        /// Whether the gate was open at the begin.
        [[nodiscard]] bool isAllowed() const { return m_isAllowed; }

        /// Stopped when the gate is closed during the call.
        [[nodiscard]] const std::stop_token &stop() const { return m_stop; }

    private:
        CallGate &m_gate;
        bool m_isAllowed;
        std::stop_token m_stop;
    };

    void open();

    /// Stops the running calls and waits until they have ended. Must not be called during one.
    void close();

private:
    std::mutex m_mutex;
    std::condition_variable m_callEnded;
    bool m_isOpen = false;
    int m_runningCalls = 0;
    std::stop_source m_stop; // of the calls that began since the last open()
};

} // namespace sdk
