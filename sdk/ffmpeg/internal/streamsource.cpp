#include "sdk/ffmpeg/internal/streamsource.h"

#include <algorithm>
#include <optional>

namespace sdk::ffmpeg {

namespace {

/// Heads are about one kilobyte; reading one again is to cost little.
constexpr std::size_t longestHead = std::size_t{16} * 1024;

/// What a reader may pass without making something of it. A cluster holds at least one picture or piece of
/// sound, and a picture never takes so many bytes.
constexpr int mostClustersWithoutProgress = 4;
constexpr std::size_t mostBytesWithoutProgress = std::size_t{8} * 1024 * 1024;

} // namespace

StreamSource::Begin StreamSource::begin(const std::stop_token &stop)
{
    // A stream that is given up has just come to a cluster, which is where it can be taken up.
    const bool isAtCluster = !m_hasNext && m_clustersWithoutProgress >= mostClustersWithoutProgress;
    m_before.clear();
    m_beforePlace = 0;
    noteProgress();
    m_skipped = 0;
    m_clusterFinder.reset();
    if (m_headState == Head::Growing) // the reader stopped in the middle of it
        forgetHead();
    if (isAtCluster && m_headState == Head::Complete) {
        prepareHead();
        return Begin::SameStream;
    }
    while (!m_hasNext) {
        const std::span<const std::uint8_t> bytes = m_queue.next(stop);
        if (bytes.empty())
            return Begin::Stopped;
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
            return Begin::SameStream;
        }
    }
    m_hasNext = false;
    m_head = m_headerFinder.header();
    m_headState = Head::Growing;
    m_before = m_head;
    return Begin::NewStream;
}

std::size_t StreamSource::read(std::span<std::uint8_t> destination, const std::stop_token &stop)
{
    if (m_hasNext || destination.empty() || stop.stop_requested())
        return 0;
    if (m_beforePlace < m_before.size()) {
        const std::size_t count = std::min(destination.size(), m_before.size() - m_beforePlace);
        std::copy_n(m_before.begin() + static_cast<std::ptrdiff_t>(m_beforePlace), count,
                    destination.begin());
        m_beforePlace += count;
        return count;
    }
    if (isGivenUp())
        return 0;
    const std::span<const std::uint8_t> bytes = m_queue.next(stop);
    return passOn(bytes.first(std::min(bytes.size(), destination.size())), destination);
}

std::size_t StreamSource::passOn(std::span<const std::uint8_t> bytes, std::span<std::uint8_t> destination)
{
    // Of the first byte: the last ones may be the mark of the next piece.
    m_arrival = m_queue.arrival();
    // Not beyond the begin of a cluster: so it is known how many of them the reader has seen.
    const std::optional<std::size_t> cluster = m_clusterFinder.find(bytes);
    bytes = bytes.first(cluster.value_or(bytes.size()));
    std::size_t count = bytes.size();
    if (const std::optional<std::size_t> header = m_headerFinder.find(bytes)) {
        m_queue.use(*header);
        m_hasNext = true;
        // A part of the header may have been passed on with earlier bytes. It does no harm at the end.
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
        forgetHead();
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

bool StreamSource::isGivenUp() const
{
    return m_clustersWithoutProgress >= mostClustersWithoutProgress ||
           m_bytesWithoutProgress >= mostBytesWithoutProgress;
}

void StreamSource::forgetHead()
{
    m_head.clear();
    m_headState = Head::Unknown;
}

} // namespace sdk::ffmpeg
