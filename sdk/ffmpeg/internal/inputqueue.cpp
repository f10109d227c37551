#include "sdk/ffmpeg/internal/inputqueue.h"

#include <utility>

namespace sdk::ffmpeg {

bool InputQueue::put(std::span<const std::uint8_t> bytes)
{
    {
        const std::lock_guard lock(m_mutex);
        if (bytes.size() > m_limit - m_waiting)
            return false;
        m_arriving.insert(m_arriving.end(), bytes.begin(), bytes.end());
        m_waiting += bytes.size();
    }
    m_arrived.notify_one();
    return true;
}

std::size_t InputQueue::waitingBytes() const
{
    const std::lock_guard lock(m_mutex);
    return m_waiting;
}

std::span<const std::uint8_t> InputQueue::next(const std::stop_token &stop)
{
    std::unique_lock lock(m_mutex);
    m_waiting -= std::exchange(m_inUse, 0);
    if (m_place == m_reading.size()) {
        m_reading.clear();
        m_place = 0;
        m_arrived.wait(lock, stop, [this] { return !m_arriving.empty(); });
        std::swap(m_arriving, m_reading);
    }
    if (stop.stop_requested())
        return {};
    return std::span<const std::uint8_t>(m_reading).subspan(m_place);
}

void InputQueue::use(std::size_t count)
{
    m_place += count;
    m_inUse += count;
}

} // namespace sdk::ffmpeg
