// Continuous timestamps of a track.
#pragma once

#include <cstdint>
#include <optional>

namespace sdk::onvif {

/// Devices set their clocks, and some have faulty timestamps: a timestamp that differs too much from the
/// elapsed time starts a new count. In microseconds. Used by one thread.
class Timeline
{
public:
    /// The continuous timestamp of a packet with the timestamp `time`, which arrived at `arrival` on a steady
    /// clock. A packet without a timestamp gets the last one plus the time elapsed since.
    [[nodiscard]] std::int64_t continuousTime(std::optional<std::int64_t> time, std::int64_t arrival);

    static constexpr std::int64_t largestStep = 5'000'000; ///< largest difference from the elapsed time

private:
    bool m_hasBegun = false;
    std::int64_t m_offset = 0;
    std::int64_t m_last = 0;
    std::int64_t m_arrival = 0;
};

} // namespace sdk::onvif
