// Splits the input of a port into streams.
#pragma once

#include "sdk/ffmpeg/internal/inputqueue.h"
#include "sdk/ffmpeg/internal/streamheader.h"

#include <cstdint>
#include <span>
#include <stop_token>
#include <vector>

namespace sdk::ffmpeg {

/// The input of a port is a sequence of streams. A stream starts with a header and ends at the header of the
/// next one. The demuxer does not detect the second header: it would skip it as damaged data. Bytes before a
/// header that belong to no stream are skipped. Not thread-safe: used by the decoding thread.
class StreamSource
{
public:
    /// `queue` must outlive the source.
    explicit StreamSource(InputQueue &queue) : m_queue(queue) {}

    /// Waits for the header of the next stream, and makes it the current stream. The bytes before the header
    /// are skipped. Returns false after a request to stop.
    [[nodiscard]] bool start(const std::stop_token &stop);

    /// Waits for bytes of the current stream, which starts with its header. Copies at least one to
    /// `destination` and returns the number of copied bytes. Returns 0 at the end of the stream, after 8 MB
    /// without notePacket(), after a request to stop and for an empty `destination`. A stream that ended by
    /// the limit is not continued: start() searches the next header.
    [[nodiscard]] std::size_t read(std::span<std::uint8_t> destination, const std::stop_token &stop);

    /// The reader has completed a packet: the limit of 8 MB applies to the bytes after it.
    void notePacket() { m_bytesOfPacket = 0; }

    /// True from the header of the next stream, which ends the current one, until start(). False for a stream
    /// that ended by the limit of 8 MB: no next header is known then.
    [[nodiscard]] bool hasNext() const { return m_hasNext; }

    /// Whether read() has returned the start of the next stream's header as bytes of the current stream. That
    /// occurs if a header arrives in two parts: bytes are not held back until it is complete.
    [[nodiscard]] bool hasReadNextHeader() const { return m_hasReadNextHeader; }

    /// Whether bytes are available: read() would return without waiting.
    [[nodiscard]] bool hasBytes() const { return m_headerPosition < m_header.size() || m_queue.hasNext(); }

    /// The time, in milliseconds of InputQueue::put(), of the bytes that read() has returned last, without
    /// headers; 0 before the first ones.
    [[nodiscard]] std::int64_t arrival() const { return m_arrival; }

    /// Sets the number of bytes that the reader keeps and has not processed. They count against the limit of
    /// the queue.
    void setHeldBytes(std::size_t count) { m_queue.hold(count); }

    /// The number of bytes that the last start() has skipped before the header.
    [[nodiscard]] std::size_t skipped() const { return m_skipped; }

private:
    InputQueue &m_queue;
    StreamHeaderFinder m_headerFinder;
    bool m_hasNext = false;             // the header of the next stream was found
    bool m_hasReadNextHeader = false;   // a part of it was read with the bytes before it
    std::vector<std::uint8_t> m_header; // of the current stream; read() returns it first
    std::size_t m_headerPosition = 0;   // of the next byte of m_header
    std::size_t m_bytesOfPacket = 0;    // read since the last completed packet
    std::size_t m_skipped = 0;
    std::int64_t m_arrival = 0;
};

} // namespace sdk::ffmpeg
