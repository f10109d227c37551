// What was pushed into a port and waits to be decoded.
#pragma once

#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <span>
#include <stop_token>
#include <vector>

namespace sdk::ffmpeg {

/// put() and waitingBytes() may be called from any thread, next() and use() from one that reads.
class InputQueue
{
public:
    explicit InputQueue(std::size_t limit) : m_limit(limit) {}

    /// Returns false, with nothing taken, when there is no room for all of the bytes.
    bool put(std::span<const std::uint8_t> bytes);

    /// What was taken and not yet dealt with: bytes count until next() is called after their use().
    [[nodiscard]] std::size_t waitingBytes() const;

    /// Waits for bytes, and returns them up to the next call; none when a stop was requested.
    [[nodiscard]] std::span<const std::uint8_t> next(const std::stop_token &stop);

    /// Takes the first `count` of the bytes that next() returned, which stay readable until its next call.
    void use(std::size_t count);

private:
    const std::size_t m_limit;

    mutable std::mutex m_mutex; // for the three below
    std::condition_variable_any m_arrived;
    std::vector<std::uint8_t> m_arriving;
    std::size_t m_waiting = 0;

    // of the thread that reads
    std::vector<std::uint8_t> m_reading;
    std::size_t m_place = 0;
    std::size_t m_inUse = 0; // bytes before m_place that still count
};

} // namespace sdk::ffmpeg
