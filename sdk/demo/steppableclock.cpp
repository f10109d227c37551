#include "sdk/demo/steppableclock.h"

#include <iterator>

namespace sdk::demo {

std::int64_t SteppableClock::now() const
{
    const std::lock_guard lock(m_mutex);
    return m_now;
}

bool SteppableClock::wait(std::chrono::milliseconds duration, const std::stop_token &stop)
{
    std::unique_lock lock(m_mutex);
    return waitWithLock(lock, m_now + duration.count(), stop);
}

bool SteppableClock::waitUntil(std::int64_t time, const std::stop_token &stop)
{
    std::unique_lock lock(m_mutex);
    return waitWithLock(lock, time, stop);
}

bool SteppableClock::waitWithLock(std::unique_lock<std::mutex> &lock, std::int64_t time,
                                  const std::stop_token &stop)
{
    const auto position = m_wakeTimes.insert(time);
    m_waitersChanged.notify_all();
    m_stepped.wait(lock, stop, [this, time] { return m_now >= time; });
    m_wakeTimes.erase(position);
    m_waitersChanged.notify_all();
    return !stop.stop_requested();
}

void SteppableClock::advance(std::chrono::milliseconds step)
{
    if (step.count() <= 0)
        return;
    const std::lock_guard lock(m_mutex);
    m_now += step.count();
    m_stepped.notify_all();
    m_waitersChanged.notify_all();
}

int SteppableClock::waiters() const
{
    const std::lock_guard lock(m_mutex);
    return countWaiters();
}

bool SteppableClock::waitForWaiters(int count, std::chrono::milliseconds timeout) const
{
    std::unique_lock lock(m_mutex);
    return m_waitersChanged.wait_for(lock, timeout, [this, count] { return countWaiters() == count; });
}

int SteppableClock::countWaiters() const
{
    return static_cast<int>(std::distance(m_wakeTimes.upper_bound(m_now), m_wakeTimes.end()));
}

} // namespace sdk::demo
