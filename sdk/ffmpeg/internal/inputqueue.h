// What was pushed into a port and waits to be decoded.
#pragma once

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <span>
#include <stop_token>
#include <vector>

namespace sdk::ffmpeg {

/// put() and waitingBytes() may be called from any thread, the others from one that reads.
class InputQueue
{
public:
    explicit InputQueue(std::size_t limit) : m_limit(limit) {}

    /// Takes bytes that arrive at `time`, in milliseconds from any starting point. Returns false, with
    /// nothing taken, when there is no room for all of them.
    bool put(std::span<const std::uint8_t> bytes, std::int64_t time);

    /// What was taken and not yet dealt with: bytes count until next() is called after their use(), and those
    /// that are held.
    [[nodiscard]] std::size_t waitingBytes() const;

    /// Waits for bytes, and returns them up to the next call; none when a stop was requested.
    [[nodiscard]] std::span<const std::uint8_t> next(const std::stop_token &stop);

    /// Takes the first `count` of the bytes that next() returned, which stay readable until its next call.
    void use(std::size_t count);

    /// Whether next() would not wait.
    [[nodiscard]] bool hasNext() const;

    /// When the next byte that can be used arrived. Only where hasNext() is true.
    [[nodiscard]] std::int64_t arrival();

    /// So many bytes that were used are not dealt with yet.
    void hold(std::size_t count);

private:
    void forgetArrivals(); // with the lock held

    /// The bytes up to `end`, counted from the first one that was put in, arrived at `time`.
    struct Arrival
    {
        std::uint64_t end;
        std::int64_t time;
    };

    const std::size_t m_limit;

    mutable std::mutex m_mutex; // for the five below
    std::condition_variable_any m_arrived;
    std::vector<std::uint8_t> m_arriving;
    std::deque<Arrival> m_arrivals; // of what was not used yet; the last one stays
    std::size_t m_waiting = 0;
    std::size_t m_held = 0;

    // of the thread that reads
    std::vector<std::uint8_t> m_reading;
    std::size_t m_place = 0;
    std::size_t m_inUse = 0;  // bytes before m_place that still count
    std::uint64_t m_used = 0; // since the first one
};

} // namespace sdk::ffmpeg
