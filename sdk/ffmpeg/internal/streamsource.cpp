#include "sdk/ffmpeg/internal/streamsource.h"

#include <algorithm>
#include <optional>

namespace sdk::ffmpeg {

namespace {

/// Typical heads have one kilobyte. The limit bounds the cost of reading a head again.
constexpr std::size_t longestHead = std::size_t{16} * 1024;

/// Limits of a reader without progress. A cluster contains at least one frame, and a frame is always smaller
/// than the limit of bytes.
constexpr int mostClustersWithoutProgress = 4;
constexpr std::size_t mostBytesWithoutProgress = std::size_t{8} * 1024 * 1024;

} // namespace

StreamSource::Start StreamSource::start(const std::stop_token &stop)
{
    // A stream that is abandoned for its number of clusters is at a cluster, where it can resume.
    const bool isAtCluster = !m_hasNext && m_clustersWithoutProgress >= mostClustersWithoutProgress;
    m_before.clear();
    m_beforePosition = 0;
    noteProgress();
    m_skipped = 0;
    m_clusterFinder.reset();
    if (m_headState == Head::Growing) // the reader stopped within the head
        clearHead();
    if (isAtCluster && m_headState == Head::Complete) {
        prepareHead();
        return Start::SameStream;
    }
    while (!m_hasNext) {
        const std::span<const std::uint8_t> bytes = m_queue.next(stop);
        if (bytes.empty())
            return Start::Stopped;
        std::optional<std::size_t> cluster;
        if (m_headState == Head::Complete)
            cluster = m_clusterFinder.find(bytes);
        const std::optional<std::size_t> header =
            m_headerFinder.find(bytes.first(cluster.value_or(bytes.size())));
        const std::size_t used = header.value_or(cluster.value_or(bytes.size()));
        m_queue.use(used);
        m_skipped += used;
        if (header) {
            m_skipped -= std::min(m_skipped, m_headerFinder.header().size());
            m_hasNext = true;
        } else if (cluster) {
            m_skipped -= std::min(m_skipped, ClusterFinder::identifierSize);
            prepareHead();
            return Start::SameStream;
        }
    }
    m_hasNext = false;
    m_head = m_headerFinder.header();
    m_headState = Head::Growing;
    m_before = m_head;
    return Start::NewStream;
}

std::size_t StreamSource::read(std::span<std::uint8_t> destination, const std::stop_token &stop)
{
    if (m_hasNext || destination.empty() || stop.stop_requested())
        return 0;
    if (m_beforePosition < m_before.size()) {
        const std::size_t count = std::min(destination.size(), m_before.size() - m_beforePosition);
        std::copy_n(m_before.begin() + static_cast<std::ptrdiff_t>(m_beforePosition), count,
                    destination.begin());
        m_beforePosition += count;
        return count;
    }
    if (isAbandoned())
        return 0;
    const std::span<const std::uint8_t> bytes = m_queue.next(stop);
    return copyTo(bytes.first(std::min(bytes.size(), destination.size())), destination);
}

std::size_t StreamSource::copyTo(std::span<const std::uint8_t> bytes, std::span<std::uint8_t> destination)
{
    // The time of the first byte: the last bytes may belong to the next packet.
    m_arrival = m_queue.arrival();
    // Not beyond the start of a cluster, which allows the clusters to be counted.
    const std::optional<std::size_t> cluster = m_clusterFinder.find(bytes);
    bytes = bytes.first(cluster.value_or(bytes.size()));
    std::size_t count = bytes.size();
    if (const std::optional<std::size_t> header = m_headerFinder.find(bytes)) {
        m_queue.use(*header);
        m_hasNext = true;
        // A part of the header may have been read with earlier bytes. It is harmless at the end.
        count = *header - std::min(*header, m_headerFinder.header().size());
    } else {
        m_queue.use(count);
        m_clustersWithoutProgress += cluster ? 1 : 0;
    }
    m_bytesWithoutProgress += count;
    if (m_headState == Head::Growing)
        extendHead(bytes.first(count), cluster && !m_hasNext);
    std::copy_n(bytes.begin(), count, destination.begin());
    return count;
}

void StreamSource::extendHead(std::span<const std::uint8_t> bytes, bool endsInCluster)
{
    m_head.insert(m_head.end(), bytes.begin(), bytes.end());
    if (m_head.size() > longestHead) {
        clearHead();
    } else if (endsInCluster) {
        m_head.resize(m_head.size() - ClusterFinder::identifierSize);
        m_headState = Head::Complete;
    }
}

void StreamSource::prepareHead()
{
    m_before = m_head;
    const auto identifier = ClusterFinder::identifier();
    m_before.insert(m_before.end(), identifier.begin(), identifier.end());
}

bool StreamSource::isAbandoned() const
{
    return m_clustersWithoutProgress >= mostClustersWithoutProgress ||
           m_bytesWithoutProgress >= mostBytesWithoutProgress;
}

void StreamSource::clearHead()
{
    m_head.clear();
    m_headState = Head::Unknown;
}

} // namespace sdk::ffmpeg
