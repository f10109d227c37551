#include "sdk/onvif/live/internal/timeline.h"

namespace sdk::onvif {

std::int64_t Timeline::continuousTime(std::optional<std::int64_t> time, std::int64_t arrival)
{
    if (!m_hasBegun && time)
        m_last = *time;
    const std::int64_t expected = m_hasBegun ? m_last + (arrival - m_arrival) : m_last;
    m_hasBegun = true;
    m_arrival = arrival;
    m_last = expected;
    if (time) {
        // Unsigned, since the time from the device may be any number.
        const auto distance = static_cast<std::int64_t>(static_cast<std::uint64_t>(*time) +
                                                        static_cast<std::uint64_t>(m_offset) -
                                                        static_cast<std::uint64_t>(expected));
        if (distance > largestStep || distance < -largestStep)
            m_offset = static_cast<std::int64_t>(static_cast<std::uint64_t>(expected) -
                                                 static_cast<std::uint64_t>(*time));
        else
            m_last = expected + distance;
    }
    return m_last;
}

} // namespace sdk::onvif
