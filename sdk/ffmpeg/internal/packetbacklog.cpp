#include "sdk/ffmpeg/internal/packetbacklog.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <utility>

namespace sdk::ffmpeg {

void PacketBacklog::add(AvPointer<AVPacket> packet, bool isPicture, std::int64_t arrival)
{
    m_pieces.push_back({std::move(packet), isPicture, arrival});
    m_bytes += m_pieces.back().bytes();
    if (!m_pieces.back().isKeyPicture())
        return;
    m_waitedInVain = false;
    if (m_lastKeyArrival)
        m_keyInterval = arrival - *m_lastKeyArrival;
    m_lastKeyArrival = arrival;
}

std::int64_t PacketBacklog::delay(std::int64_t now) const
{
    return m_pieces.empty() ? 0 : now - m_pieces.front().arrival;
}

PacketBacklog::Skip PacketBacklog::skip(std::int64_t now)
{
    const auto newestKey = std::find_if(m_pieces.rbegin(), m_pieces.rend(),
                                        [](const Piece &piece) { return piece.isKeyPicture(); });
    if (newestKey != m_pieces.rend() && (m_waitsForKey || delay(now) > skippedDelay)) {
        const int pictures = dropBefore(std::prev(newestKey.base()));
        return {pictures, std::exchange(m_waitsForKey, false) || pictures > 0};
    }
    if (m_waitsForKey && now - m_waitBegin > std::max(longestWait, 2 * m_keyInterval)) {
        m_waitsForKey = false;
        m_waitedInVain = true;
        return {0, true};
    }
    if (m_waitsForKey)
        return {dropPictures(), true};
    // A key picture is shown however late it is: where nothing is in time, the picture still moves on.
    if (m_pieces.empty() || m_pieces.front().isKeyPicture() || m_waitedInVain)
        return {};
    const std::int64_t late = delay(now);
    if (late <= longDelay || (late <= longestDelay && !isKeyPictureExpected(now)))
        return {};
    m_waitsForKey = true;
    m_waitBegin = now;
    return {dropBefore(m_pieces.end()), true};
}

bool PacketBacklog::isKeyPictureExpected(std::int64_t now) const
{
    if (!m_lastKeyArrival)
        return false;
    const std::int64_t wait = *m_lastKeyArrival + m_keyInterval - now;
    return std::abs(wait) <= shortWait; // one that is overdue for longer may not come soon either
}

int PacketBacklog::dropBefore(const Pieces::iterator &end)
{
    const auto pictures =
        std::count_if(m_pieces.begin(), end, [](const Piece &piece) { return piece.isPicture; });
    for (auto piece = m_pieces.begin(); piece != end; ++piece)
        m_bytes -= piece->bytes();
    m_pieces.erase(m_pieces.begin(), end);
    return static_cast<int>(pictures);
}

int PacketBacklog::dropPictures()
{
    return static_cast<int>(std::erase_if(m_pieces, [this](const Piece &piece) {
        m_bytes -= piece.isPicture ? piece.bytes() : 0;
        return piece.isPicture;
    }));
}

AvPointer<AVPacket> PacketBacklog::take()
{
    m_bytes -= m_pieces.front().bytes();
    AvPointer<AVPacket> packet = std::move(m_pieces.front().packet);
    m_pieces.pop_front();
    return packet;
}

} // namespace sdk::ffmpeg
