// Cuts what arrives at a port into streams.
#pragma once

#include "sdk/ffmpeg/internal/inputqueue.h"
#include "sdk/ffmpeg/internal/streamheader.h"

#include <cstdint>
#include <span>
#include <stop_token>
#include <vector>

namespace sdk::ffmpeg {

/// The bytes of a port are one stream after another: each ends where the header of the next begins, or where
/// its reader gives it up. What lies between streams is skipped. A stream that was given up is taken up again
/// at its next cluster: its head, the bytes before the first one, is kept and read again. On one thread.
class StreamSource
{
public:
    explicit StreamSource(InputQueue &queue) : m_queue(queue) {}

    enum class Begin
    {
        Stopped,
        NewStream,
        SameStream, ///< taken up again
    };

    /// Waits for the begin of a stream.
    [[nodiscard]] Begin begin(const std::stop_token &stop);

    /// Waits for bytes of the stream that has begun and puts some of them, at least one, into `destination`.
    /// Returns how many; 0 at the end of the stream, when it is given up, and when a stop was requested.
    [[nodiscard]] std::size_t read(std::span<std::uint8_t> destination, const std::stop_token &stop);

    /// Tells that the reader makes something of the bytes. One that does not for several clusters, or for too
    /// many bytes, has lost its way, and the stream is given up.
    void noteProgress()
    {
        m_bytesWithoutProgress = 0;
        m_clustersWithoutProgress = 0;
    }

    /// The stream is not to be taken up again.
    void forgetHead();

    /// Whether the stream ended with the header of the next, not by being given up.
    [[nodiscard]] bool hasNext() const { return m_hasNext; }

    /// Whether read() would not wait.
    [[nodiscard]] bool hasBytes() const { return m_beforePlace < m_before.size() || m_queue.hasNext(); }

    /// When the bytes that were read last arrived at the port.
    [[nodiscard]] std::int64_t arrival() const { return m_arrival; }

    /// Tells how many of the bytes that were read the reader keeps for later.
    void noteKept(std::size_t count) { m_queue.hold(count); }

    /// Bytes skipped before the stream that has begun.
    [[nodiscard]] std::size_t skipped() const { return m_skipped; }

private:
    [[nodiscard]] std::size_t passOn(std::span<const std::uint8_t> bytes,
                                     std::span<std::uint8_t> destination);
    void extendHead(std::span<const std::uint8_t> bytes, bool endsInCluster);
    void prepareHead();
    [[nodiscard]] bool isGivenUp() const;

    InputQueue &m_queue;
    StreamHeaderFinder m_headerFinder;
    ClusterFinder m_clusterFinder;

    enum class Head
    {
        Unknown,
        Growing,
        Complete,
    };
    Head m_headState = Head::Unknown;
    std::vector<std::uint8_t> m_head;

    bool m_hasNext = false;             // the header of the next stream has been found
    std::vector<std::uint8_t> m_before; // what is to be read before the bytes of the queue
    std::size_t m_beforePlace = 0;
    std::size_t m_bytesWithoutProgress = 0;
    int m_clustersWithoutProgress = 0;
    std::size_t m_skipped = 0;
    std::int64_t m_arrival = 0;
};

} // namespace sdk::ffmpeg
