#include "sdk/clock.h"

namespace sdk {

std::int64_t SystemClock::now() const
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

bool SystemClock::wait(std::chrono::milliseconds duration, const std::stop_token &stop)
{
    // Each waiting thread has a separate condition: only the stop wakes it early.
    std::mutex mutex;
    std::condition_variable_any condition;
    std::unique_lock lock(mutex);
    condition.wait_for(lock, stop, duration, [] { return false; });
    return !stop.stop_requested();
}

} // namespace sdk
