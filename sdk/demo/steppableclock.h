// A clock for tests that advances only by the steps of advance(): a wait ends with the step that reaches its
// end, independent of real time.
#pragma once

#include "sdk/clock.h"

#include <set>

namespace sdk::demo {

/// Thread-safe. A waiting thread is woken by the step that reaches its time, or by its stop.
class SteppableClock : public Clock
{
public:
    /// 2024-01-01T00:00:00Z.
    static constexpr std::int64_t defaultStart = 1704067200000;

    /// `start` in ms since 1970.
    explicit SteppableClock(std::int64_t start = defaultStart) : m_now(start) {}

    using Clock::wait;
    [[nodiscard]] std::int64_t now() const override;
    bool wait(std::chrono::milliseconds duration, const std::stop_token &stop) override;
    bool waitUntil(std::int64_t time, const std::stop_token &stop) override;

    /// Advances the clock and wakes the threads whose time has come; does not wait for them. A negative step
    /// is ignored.
    void advance(std::chrono::milliseconds step);

    /// The number of threads that wait for a later step. A thread whose time has come is not counted, even
    /// before it runs again.
    [[nodiscard]] int waiters() const;

    /// Blocks until waiters() is exactly `count`. Returns false after `timeout` of real time.
    [[nodiscard]] bool waitForWaiters(int count,
                                      std::chrono::milliseconds timeout = std::chrono::seconds(10)) const;

private:
    // Both require m_mutex, which `lock` holds.
    bool waitWithLock(std::unique_lock<std::mutex> &lock, std::int64_t time, const std::stop_token &stop);
    [[nodiscard]] int countWaiters() const;

    mutable std::mutex m_mutex;
    mutable std::condition_variable m_waitersChanged;
    std::condition_variable_any m_stepped;
    std::int64_t m_now;
    std::multiset<std::int64_t> m_wakeTimes; // one for each waiting thread
};

} // namespace sdk::demo
