// Ends an operation of a library early, on behalf of its caller.
#pragma once

#include <functional>
#include <stop_token>
#include <utility>

namespace sdk {

/// While the object exists, a call of NetModifyDeviceBySearch on the thread that created it ends early: when
/// a stop is requested, or when the caller's time is over. Other operations may ignore the object.
///
/// - A request that changes the device is completed if it is already sent.
/// - Any other request ends within a fraction of a second after a stop. When the time is over, it may
///   continue until its own timeout.
/// - The wait for the device at its new address ends after a stop, and when the time is over.
///
/// A thread has at most one object at a time, and destroys it itself.
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

    // Implementations call these two. They use the object of the calling thread.

    /// The stop token of the object; a token that is never stopped if the thread has no object. The end of
    /// the time does not stop it.
    [[nodiscard]] static std::stop_token token() { return current() ? current()->m_stop : std::stop_token(); }

    /// True if the stop was requested or the time is over; false if the thread has no object.
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
