#include "sdk/ffmpeg/internal/packetbacklog.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <utility>

namespace sdk::ffmpeg {

void PacketBacklog::add(AvPointer<AVPacket> packet, bool isVideo, std::int64_t arrival)
{
    m_entries.push_back({std::move(packet), isVideo, arrival});
    m_bytes += m_entries.back().bytes();
    if (!m_entries.back().isKeyFrame())
        return;
    m_hasTimedOut = false;
    if (m_lastKeyArrival)
        m_keyInterval = arrival - *m_lastKeyArrival;
    m_lastKeyArrival = arrival;
}

std::int64_t PacketBacklog::delay(std::int64_t now) const
{
    return m_entries.empty() ? 0 : now - m_entries.front().arrival;
}

PacketBacklog::Skip PacketBacklog::skip(std::int64_t now)
{
    const auto newestKey = std::find_if(m_entries.rbegin(), m_entries.rend(),
                                        [](const Entry &entry) { return entry.isKeyFrame(); });
    if (newestKey != m_entries.rend() && (m_waitsForKey || delay(now) > skippedDelay)) {
        const int frames = dropBefore(std::prev(newestKey.base()));
        return {frames, std::exchange(m_waitsForKey, false) || frames > 0};
    }
    if (m_waitsForKey && now - m_waitStart > std::max(longestWait, 2 * m_keyInterval)) {
        m_waitsForKey = false;
        m_hasTimedOut = true;
        return {0, true};
    }
    if (m_waitsForKey)
        return {dropFrames(), true};
    // A key frame is shown regardless of its delay: a stream that is always late still shows images.
    if (m_entries.empty() || m_entries.front().isKeyFrame() || m_hasTimedOut)
        return {};
    const std::int64_t late = delay(now);
    if (late <= longDelay || (late <= longestDelay && !isKeyFrameExpected(now)))
        return {};
    m_waitsForKey = true;
    m_waitStart = now;
    return {dropBefore(m_entries.end()), true};
}

bool PacketBacklog::isKeyFrameExpected(std::int64_t now) const
{
    if (!m_lastKeyArrival)
        return false;
    const std::int64_t wait = *m_lastKeyArrival + m_keyInterval - now;
    return std::abs(wait) <= shortWait; // a key frame that is overdue for longer may never arrive
}

int PacketBacklog::dropBefore(const Entries::iterator &end)
{
    const auto frames =
        std::count_if(m_entries.begin(), end, [](const Entry &entry) { return entry.isVideo; });
    for (auto entry = m_entries.begin(); entry != end; ++entry)
        m_bytes -= entry->bytes();
    m_entries.erase(m_entries.begin(), end);
    return static_cast<int>(frames);
}

int PacketBacklog::dropFrames()
{
    return static_cast<int>(std::erase_if(m_entries, [this](const Entry &entry) {
        m_bytes -= entry.isVideo ? entry.bytes() : 0;
        return entry.isVideo;
    }));
}

AvPointer<AVPacket> PacketBacklog::take()
{
    m_bytes -= m_entries.front().bytes();
    AvPointer<AVPacket> packet = std::move(m_entries.front().packet);
    m_entries.pop_front();
    return packet;
}

} // namespace sdk::ffmpeg
