// How the caller of a library's operation ends it before its time.
#pragma once

#include <functional>
#include <stop_token>
#include <utility>

namespace sdk {

/// As long as it exists, a call of NetModifyDeviceBySearch on this thread ends early: on a stop, or when the
/// time is over. A wait for the device at its new address ends within a moment. A request that is under way
/// before is finished first. One at a time on a thread.
class CallStop
{
public:
    /// `isLate` returns whether the time is over; empty for never. It is called on this thread.
    explicit CallStop(std::stop_token stop, std::function<bool()> isLate = {})
        : m_stop(std::move(stop)), m_isLate(std::move(isLate))
    {
        current() = this;
    }
    ~CallStop() { current() = nullptr; }
    CallStop(const CallStop &) = delete;
    CallStop &operator=(const CallStop &) = delete;

    // Of the calling thread, outside of any CallStop as well.

    /// Stopped with the caller, but not by the time.
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
