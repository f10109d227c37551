// Ends an operation of a library early, on behalf of its caller.
#pragma once

#include <functional>
#include <stop_token>
#include <utility>

namespace sdk {

/// While the object exists, a call of NetModifyDeviceBySearch on this thread ends early: when a stop is
/// requested, or when the caller's time is over. A request that changes the device is completed first, if it
/// is already sent. Other requests end within a fraction of a second on a stop, and a wait for the device at
/// its new address also when the time is over. A thread has one object at a time.
class CallStop
{
public:
    /// `isLate` returns true when the caller's time is over; empty for no limit. It is called on this thread.
    explicit CallStop(std::stop_token stop, std::function<bool()> isLate = {})
        : m_stop(std::move(stop)), m_isLate(std::move(isLate))
    {
        current() = this;
    }
    ~CallStop() { current() = nullptr; }
    CallStop(const CallStop &) = delete;
    CallStop &operator=(const CallStop &) = delete;

    // These apply to the calling thread. They may be called without a CallStop.

    /// The caller's stop token. `isLate` does not stop it.
    [[nodiscard]] static std::stop_token token() { return current() ? current()->m_stop : std::stop_token(); }

    [[nodiscard]] static bool isRequested()
    {
        const CallStop *const stop = current();
        return stop && (stop->m_stop.stop_requested() || (stop->m_isLate && stop->m_isLate()));
    }

private:
    static CallStop *&current()
    {
        thread_local CallStop *ofThread = nullptr;
        return ofThread;
    }

    const std::stop_token m_stop;
    const std::function<bool()> m_isLate;
};

} // namespace sdk
