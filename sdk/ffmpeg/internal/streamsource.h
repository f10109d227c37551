// Splits the input of a port into streams.
#pragma once

#include "sdk/ffmpeg/internal/inputqueue.h"
#include "sdk/ffmpeg/internal/streamheader.h"

#include <cstdint>
#include <span>
#include <stop_token>
#include <vector>

namespace sdk::ffmpeg {

/// The input of a port is a sequence of streams. A stream ends at the header of the next one, or is abandoned
/// if its reader makes no progress. Bytes between streams are skipped. An abandoned stream resumes at its
/// next cluster: its head, the bytes before the first cluster, is stored and read again. Not thread-safe.
class StreamSource
{
public:
    explicit StreamSource(InputQueue &queue) : m_queue(queue) {}

    enum class Start
    {
        Stopped,
        NewStream,
        SameStream, ///< resumed
    };

    /// Waits for the start of a stream.
    [[nodiscard]] Start start(const std::stop_token &stop);

    /// Waits for bytes of the current stream and copies at least one to `destination`. Returns their number;
    /// 0 at the end of the stream, if it is abandoned, and after a request to stop.
    [[nodiscard]] std::size_t read(std::span<std::uint8_t> destination, const std::stop_token &stop);

    /// Reports progress of the reader. Without progress for several clusters or too many bytes, the reader
    /// has lost synchronisation, and the stream is abandoned.
    void noteProgress()
    {
        m_bytesWithoutProgress = 0;
        m_clustersWithoutProgress = 0;
    }

    /// Clears the head: the stream cannot be resumed.
    void clearHead();

    /// Whether the stream ended with the header of the next one, and was not abandoned.
    [[nodiscard]] bool hasNext() const { return m_hasNext; }

    /// Whether read() would not wait.
    [[nodiscard]] bool hasBytes() const { return m_beforePosition < m_before.size() || m_queue.hasNext(); }

    /// The arrival time of the last read bytes.
    [[nodiscard]] std::int64_t arrival() const { return m_arrival; }

    /// Sets the number of read bytes that the reader has not processed yet.
    void setHeldBytes(std::size_t count) { m_queue.hold(count); }

    /// The number of bytes that were skipped before the current stream.
    [[nodiscard]] std::size_t skipped() const { return m_skipped; }

private:
    [[nodiscard]] std::size_t copyTo(std::span<const std::uint8_t> bytes,
                                     std::span<std::uint8_t> destination);
    void extendHead(std::span<const std::uint8_t> bytes, bool endsInCluster);
    void prepareHead();
    [[nodiscard]] bool isAbandoned() const;

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

    bool m_hasNext = false;             // the header of the next stream was found
    std::vector<std::uint8_t> m_before; // bytes to read before those of the queue
    std::size_t m_beforePosition = 0;
    std::size_t m_bytesWithoutProgress = 0;
    int m_clustersWithoutProgress = 0;
    std::size_t m_skipped = 0;
    std::int64_t m_arrival = 0;
};

} // namespace sdk::ffmpeg
