// Times of a track that go on evenly.
#pragma once

#include <cstdint>
#include <optional>

namespace sdk::onvif {

/// Devices set their clocks, and some count badly: a time that is far from where it should be, by the time
/// that has passed, is taken for a new count. In microseconds. Belongs to one thread.
class Timeline
{
public:
    /// Where a packet of time `time`, which arrived at `arrival` on a steady clock, stands. Without a time it
    /// follows on the last one by what has passed since.
    [[nodiscard]] std::int64_t place(std::optional<std::int64_t> time, std::int64_t arrival);

    static constexpr std::int64_t largestStep = 5'000'000; ///< more than what has passed, or less

private:
    bool m_hasBegun = false;
    std::int64_t m_offset = 0;
    std::int64_t m_last = 0;
    std::int64_t m_arrival = 0;
};

} // namespace sdk::onvif
