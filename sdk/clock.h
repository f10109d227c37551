// The clock that waits and time stamps go through, so that a simulated site can run on a clock of its own.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <stop_token>

namespace sdk {

/// Thread-safe.
class Clock
{
public:
    virtual ~Clock() = default;

    /// Milliseconds since 1970-01-01T00:00:00Z.
    [[nodiscard]] virtual std::int64_t now() const = 0;

    /// Blocks the calling thread until `duration` has passed on this clock. Returns false at once when a stop
    /// is requested, true after the full wait.
    virtual bool wait(std::chrono::milliseconds duration, const std::stop_token &stop) = 0;

    /// Blocks the calling thread until now() has reached `time`, else as wait(). A clock that can be stepped
    /// overrides it, so that a step between the caller's look at the clock and its wait is not lost.
    virtual bool waitUntil(std::int64_t time, const std::stop_token &stop)
    {
        return wait(std::chrono::milliseconds(time - now()), stop);
    }

    /// A wait that nothing cuts short.
    void wait(std::chrono::milliseconds duration) { wait(duration, std::stop_token()); }
};

/// The computer's own time.
class SystemClock : public Clock
{
public:
    using Clock::wait;
    [[nodiscard]] std::int64_t now() const override;
    bool wait(std::chrono::milliseconds duration, const std::stop_token &stop) override;
};

} // namespace sdk
