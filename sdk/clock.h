// The clock of all timeouts and timestamps, so that a simulated site can use a separate clock.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <stop_token>

namespace sdk {

/// Implementations are thread-safe.
class Clock
{
public:
    virtual ~Clock() = default;

    /// Milliseconds since 1970-01-01T00:00:00Z.
    [[nodiscard]] virtual std::int64_t now() const = 0;

    /// Blocks the calling thread until `duration` has passed on this clock, and returns true. A duration of 0
    /// or less does not block. Returns false, without a further wait, when a stop is requested; also if it
    /// was requested before the call.
    virtual bool wait(std::chrono::milliseconds duration, const std::stop_token &stop) = 0;

    /// As wait(), until now() has reached `time`, in milliseconds since 1970. This implementation ignores
    /// steps of the clock after the call. A clock whose steps must end the wait overrides it.
    virtual bool waitUntil(std::int64_t time, const std::stop_token &stop)
    {
        return wait(std::chrono::milliseconds(time - now()), stop);
    }

    /// A wait that cannot be stopped.
    void wait(std::chrono::milliseconds duration) { wait(duration, std::stop_token()); }
};

/// The clock of the host. A change of the host's time does not lengthen or shorten a running wait.
class SystemClock : public Clock
{
public:
    using Clock::wait;
    [[nodiscard]] std::int64_t now() const override;
    bool wait(std::chrono::milliseconds duration, const std::stop_token &stop) override;
};

} // namespace sdk
