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

/// The bytes from DecoderInputData on the way to the decoding thread, each with the time of its arrival.
/// put() and waitingBytes() are thread-safe. The other functions are called on one thread, the reader.
/// "Unused" bytes are those that the reader has not passed to use().
class InputQueue
{
public:
    /// `limit` is the number of bytes up to which put() accepts more.
    explicit InputQueue(std::size_t limit) : m_limit(limit) {}

    /// Copies bytes that arrive at `time`, in milliseconds, the same clock for all calls. Returns false and
    /// adds nothing if waitingBytes() would exceed the limit.
    bool put(std::span<const std::uint8_t> bytes, std::int64_t time);

    /// The number of bytes that the reader has not processed: the unused bytes, the used bytes until the next
    /// call of next(), and the bytes of hold().
    [[nodiscard]] std::size_t waitingBytes() const;

    /// Waits for unused bytes and returns them, perhaps not all. They are valid until the next call of
    /// next(). Returns an empty span after a request to stop, also if there are unused bytes.
    [[nodiscard]] std::span<const std::uint8_t> next(const std::stop_token &stop);

    /// Marks the first `count` unused bytes of the last next() as used. `count` must not exceed their number.
    /// The bytes stay readable until the next call of next().
    void use(std::size_t count);

    /// True if there are unused bytes: next() would return without waiting.
    [[nodiscard]] bool hasNext() const;

    /// Bytes that arrived together.
    struct Arrival
    {
        std::int64_t time = 0; ///< the `time` of put()
        std::size_t size = 0;  ///< number of the next unused bytes that arrived at this time
    };

    /// The arrival of the next unused byte. Requires hasNext().
    [[nodiscard]] Arrival arrival();

    /// Sets the number of used bytes that the reader keeps elsewhere and has not processed. They count in
    /// waitingBytes(), and so against the limit, until the next hold() sets another number.
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
