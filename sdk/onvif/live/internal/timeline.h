// Continuous timestamps of a track.
#pragma once

#include <cstdint>
#include <optional>

namespace sdk::onvif {

/// Devices set their clocks, and some have faulty timestamps. The expected timestamp of a packet is the last
/// result plus the time elapsed since. A timestamp that differs from it by more than `largestStep` is
/// replaced by it, and later timestamps are shifted by the same difference. Smaller differences are kept, so
/// a result may be earlier than the one before. All times are in microseconds. Used by one thread.
class Timeline
{
public:
    /// The continuous timestamp of a packet with the timestamp `time`, which arrived at `arrival` on a steady
    /// clock. The first one is unchanged, 0 without a timestamp. A later packet without a timestamp gets the
    /// expected one.
    [[nodiscard]] std::int64_t continuousTime(std::optional<std::int64_t> time, std::int64_t arrival);

    static constexpr std::int64_t largestStep = 5'000'000; ///< largest kept difference

private:
    bool m_hasBegun = false;
    std::int64_t m_offset = 0;
    std::int64_t m_last = 0;
    std::int64_t m_arrival = 0;
};

} // namespace sdk::onvif
