#include "sdk/ffmpeg/internal/streamsource.h"

#include <algorithm>
#include <optional>

namespace sdk::ffmpeg {

namespace {

/// A frame is always smaller. With a damaged size, the demuxer would buffer up to 256 MB.
constexpr std::size_t mostBytesPerPacket = std::size_t{8} * 1024 * 1024;

} // namespace

bool StreamSource::start(const std::stop_token &stop)
{
    m_skipped = 0;
    while (!m_hasNext) {
        const std::span<const std::uint8_t> bytes = m_queue.next(stop);
        if (bytes.empty())
            return false;
        const std::optional<std::size_t> header = m_headerFinder.find(bytes);
        const std::size_t used = header.value_or(bytes.size());
        m_queue.use(used);
        m_skipped += used;
        if (header) {
            m_skipped -= std::min(m_skipped, m_headerFinder.header().size());
            m_hasNext = true;
        }
    }
    m_hasNext = false;
    m_hasReadNextHeader = false;
    m_header = m_headerFinder.header();
    m_headerPosition = 0;
    notePacket();
    return true;
}

std::size_t StreamSource::read(std::span<std::uint8_t> destination, const std::stop_token &stop)
{
    if (m_hasNext || destination.empty() || stop.stop_requested() || m_bytesOfPacket >= mostBytesPerPacket)
        return 0;
    if (m_headerPosition < m_header.size()) {
        const std::size_t count = std::min(destination.size(), m_header.size() - m_headerPosition);
        std::copy_n(m_header.begin() + static_cast<std::ptrdiff_t>(m_headerPosition), count,
                    destination.begin());
        m_headerPosition += count;
        return count;
    }
    std::span<const std::uint8_t> bytes = m_queue.next(stop);
    if (bytes.empty())
        return 0;
    // Not beyond one arrival, so that the packets of a late stream have their own arrival times.
    const InputQueue::Arrival arrival = m_queue.arrival();
    bytes = bytes.first(std::min({bytes.size(), destination.size(), arrival.size}));
    m_arrival = arrival.time;
    std::size_t count = bytes.size();
    if (const std::optional<std::size_t> header = m_headerFinder.find(bytes)) {
        m_queue.use(*header);
        m_hasNext = true;
        // Bytes are not held back for a possible header: that would delay the frame that they complete.
        const std::size_t headerSize = m_headerFinder.header().size();
        m_hasReadNextHeader = headerSize > *header;
        count = *header - std::min(*header, headerSize);
    } else {
        m_queue.use(count);
    }
    m_bytesOfPacket += count;
    std::copy_n(bytes.begin(), count, destination.begin());
    return count;
}

} // namespace sdk::ffmpeg
