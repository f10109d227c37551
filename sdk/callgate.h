// Admits the calls of a device library's operations while the library is initialised. Closing the library
// waits until the last call has ended.
#pragma once

#include <condition_variable>
#include <mutex>
#include <stop_token>

namespace sdk {

/// Initially closed. Thread-safe.
class CallGate
{
public:
    /// One call of an operation, created at its start. The call lasts as long as this object. The gate must
    /// outlive it.
    class Call
    {
    public:
        explicit Call(CallGate &gate);
        ~Call();
        Call(const Call &) = delete;
        Call &operator=(const Call &) = delete;

        /// True if the gate was open at the start of the call. If false, the operation must return its
        /// failure without any other effect; close() waits for such a call, too.
        [[nodiscard]] bool isAllowed() const { return m_isAllowed; }

        /// Stopped when the gate is closed during the call. The operation then ends its waits. Not to be used
        /// by a refused call.
        [[nodiscard]] const std::stop_token &stop() const { return m_stop; }

    private:
        CallGate &m_gate;
        bool m_isAllowed;
        std::stop_token m_stop;
    };

    /// Admits the calls that start from now on. No effect on an open gate.
    void open();

    /// Refuses the calls that start from now on, stops the running ones and blocks until they have ended.
    /// Must not be called by a thread that has a Call. open() may follow.
    void close();

private:
    std::mutex m_mutex;
    std::condition_variable m_callEnded;
    bool m_isOpen = false;
    int m_runningCalls = 0;
    std::stop_source m_stop; // of the calls that started since the last open()
};

} // namespace sdk
