#include "sdk/ffmpeg/internal/inputqueue.h"

#include <utility>

namespace sdk::ffmpeg {

bool InputQueue::put(std::span<const std::uint8_t> bytes, std::int64_t time)
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_waiting + m_held > m_limit || bytes.size() > m_limit - m_waiting - m_held)
            return false;
        m_arriving.insert(m_arriving.end(), bytes.begin(), bytes.end());
        m_waiting += bytes.size();
        const std::uint64_t end = (m_arrivals.empty() ? 0 : m_arrivals.back().end) + bytes.size();
        if (!m_arrivals.empty() && m_arrivals.back().time == time)
            m_arrivals.back().end = end;
        else
            m_arrivals.push_back({end, time});
    }
    m_arrived.notify_one();
    return true;
}

std::size_t InputQueue::waitingBytes() const
{
    const std::lock_guard lock(m_mutex);
    return m_waiting + m_held;
}

std::span<const std::uint8_t> InputQueue::next(const std::stop_token &stop)
{
    std::unique_lock lock(m_mutex);
    m_waiting -= std::exchange(m_inUse, 0);
    dropArrivals();
    if (m_position == m_reading.size()) {
        m_reading.clear();
        m_position = 0;
        m_arrived.wait(lock, stop, [this] { return !m_arriving.empty(); });
        std::swap(m_arriving, m_reading);
    }
    if (stop.stop_requested())
        return {};
    return std::span<const std::uint8_t>(m_reading).subspan(m_position);
}

void InputQueue::use(std::size_t count)
{
    m_position += count;
    m_inUse += count;
    m_used += count;
}

bool InputQueue::hasNext() const
{
    const std::lock_guard lock(m_mutex);
    return m_position < m_reading.size() || !m_arriving.empty();
}

InputQueue::Arrival InputQueue::arrival()
{
    const std::lock_guard lock(m_mutex);
    dropArrivals();
    if (m_arrivals.empty())
        return {};
    const ArrivalEnd &next = m_arrivals.front();
    return {.time = next.time, .size = static_cast<std::size_t>(next.end - m_used)};
}

void InputQueue::dropArrivals()
{
    // The last entry stays: later entries start at its end.
    while (m_arrivals.size() > 1 && m_arrivals.front().end <= m_used)
        m_arrivals.pop_front();
}

void InputQueue::hold(std::size_t count)
{
    const std::lock_guard lock(m_mutex);
    m_held = count;
}

} // namespace sdk::ffmpeg
