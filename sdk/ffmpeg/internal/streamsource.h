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
/// next one. The demuxer does not detect the second header: it would skip it as damaged data. Bytes between
/// streams are skipped. Not thread-safe.
class StreamSource
{
public:
    /// `queue` must outlive the source.
    explicit StreamSource(InputQueue &queue) : m_queue(queue) {}

    /// Waits for the header of the next stream. Returns false after a request to stop.
    [[nodiscard]] bool start(const std::stop_token &stop);

    /// Waits for bytes of the current stream and copies at least one to `destination`. Returns their number;
    /// 0 at the end of the stream, if a packet is larger than 8 MB, and after a request to stop.
    [[nodiscard]] std::size_t read(std::span<std::uint8_t> destination, const std::stop_token &stop);

    /// The reader has completed a packet.
    void notePacket() { m_bytesOfPacket = 0; }

    /// Whether the stream ended with the header of the next one.
    [[nodiscard]] bool hasNext() const { return m_hasNext; }

    /// Whether read() has returned the start of the header of the next stream: it arrived before the rest.
    [[nodiscard]] bool hasReadNextHeader() const { return m_hasReadNextHeader; }

    /// Whether read() would not wait.
    [[nodiscard]] bool hasBytes() const { return m_headerPosition < m_header.size() || m_queue.hasNext(); }

    /// The arrival time of the last read bytes.
    [[nodiscard]] std::int64_t arrival() const { return m_arrival; }

    /// Sets the number of read bytes that the reader has not processed yet.
    void setHeldBytes(std::size_t count) { m_queue.hold(count); }

    /// The number of bytes that were skipped before the current stream.
    [[nodiscard]] std::size_t skipped() const { return m_skipped; }

private:
    InputQueue &m_queue;
    StreamHeaderFinder m_headerFinder;
    bool m_hasNext = false;             // the header of the next stream was found
    bool m_hasReadNextHeader = false;   // a part of it was read with the bytes before it
    std::vector<std::uint8_t> m_header; // read before the bytes of the queue
    std::size_t m_headerPosition = 0;
    std::size_t m_bytesOfPacket = 0; // read since the last completed packet
    std::size_t m_skipped = 0;
    std::int64_t m_arrival = 0;
};

} // namespace sdk::ffmpeg
