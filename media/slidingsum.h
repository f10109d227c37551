#pragma once

#include <array>
#include <cstdint>

/// The sum of the amounts of the last second, with a resolution of 100 ms. Times are in milliseconds on one
/// clock, 0 or later. Not thread-safe.
class SlidingSum
{
public:
    /// Adds an amount of any unit at the time `now`.
    void add(std::int64_t now, std::int64_t amount)
    {
        const std::int64_t tenth = now / tenthOfSecond;
        Slot &slot = m_slots.at(indexOf(tenth));
        if (slot.tenth != tenth)
            slot = {.tenth = tenth, .amount = 0};
        slot.amount += amount;
    }

    /// The sum of the amounts in the ten complete tenths of a second before `now`. The tenth of a second that
    /// contains `now` does not count.
    [[nodiscard]] std::int64_t sum(std::int64_t now) const
    {
        const std::int64_t current = now / tenthOfSecond;
        std::int64_t sum = 0;
        for (const Slot &slot : m_slots) {
            if (slot.tenth >= current - 10 && slot.tenth < current)
                sum += slot.amount;
        }
        return sum;
    }

private:
    static constexpr std::int64_t tenthOfSecond = 100; // milliseconds

    struct Slot
    {
        std::int64_t tenth = -1000; // number of the tenth of a second; initially too old to count
        std::int64_t amount = 0;
    };

    [[nodiscard]] static std::size_t indexOf(std::int64_t tenth)
    {
        return static_cast<std::size_t>(static_cast<std::uint64_t>(tenth) % 11);
    }

    std::array<Slot, 11> m_slots; // the current tenth and the ten before it
};
