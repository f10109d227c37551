// Admits calls to a library while the library is open, and waits for the last of them to end.
#pragma once

#include <condition_variable>
#include <mutex>
#include <stop_token>

namespace sdk {

/// Thread-safe.
class CallGate
{
public:
    /// One call. It lasts as long as this object, which the gate must outlive.
    class Call
    {
    public:
        explicit Call(CallGate &gate);
        ~Call();
        Call(const Call &) = delete;
        Call &operator=(const Call &) = delete;

        /// True if the gate was open at the start of the call. Otherwise the call must fail.
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
    std::stop_source m_stop; // of the calls that started since the last open()
};

} // namespace sdk
