// The input of a port that is not decoded yet.
#pragma once

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <span>
#include <stop_token>
#include <vector>

namespace sdk::ffmpeg {

/// put() and waitingBytes() are thread-safe. The other functions belong to one reading thread.
class InputQueue
{
public:
    explicit InputQueue(std::size_t limit) : m_limit(limit) {}

    /// Adds bytes that arrive at `time`, in milliseconds since any start. Returns false and adds nothing if
    /// the free space is too small.
    bool put(std::span<const std::uint8_t> bytes, std::int64_t time);

    /// The number of unprocessed bytes. Used bytes count until the next call of next(); held bytes count as
    /// well.
    [[nodiscard]] std::size_t waitingBytes() const;

    /// Waits for bytes and returns them; they are valid until the next call. Empty after a request to stop.
    [[nodiscard]] std::span<const std::uint8_t> next(const std::stop_token &stop);

    /// Consumes the first `count` bytes of next(). They stay readable until the next call of next().
    void use(std::size_t count);

    /// Whether next() would not wait.
    [[nodiscard]] bool hasNext() const;

    struct Arrival
    {
        std::int64_t time = 0;
        std::size_t size = 0; ///< number of unused bytes that arrived at this time
    };

    /// The arrival of the next byte. Requires hasNext().
    [[nodiscard]] Arrival arrival();

    /// `count` used bytes are not processed yet.
    void hold(std::size_t count);

private:
    void dropArrivals(); // the caller holds the lock

    /// The bytes up to the stream position `end` arrived at `time`.
    struct ArrivalEnd
    {
        std::uint64_t end;
        std::int64_t time;
    };

    const std::size_t m_limit;

    mutable std::mutex m_mutex; // guards the five members below
    std::condition_variable_any m_arrived;
    std::vector<std::uint8_t> m_arriving;
    std::deque<ArrivalEnd> m_arrivals; // of unused bytes; the last entry stays
    std::size_t m_waiting = 0;
    std::size_t m_held = 0;

    // members of the reading thread
    std::vector<std::uint8_t> m_reading;
    std::size_t m_position = 0;
    std::size_t m_inUse = 0;  // bytes before m_position that still count
    std::uint64_t m_used = 0; // stream position of the next byte
};

} // namespace sdk::ffmpeg
