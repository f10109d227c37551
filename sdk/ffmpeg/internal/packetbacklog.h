// Packets of a live stream that are read and not decoded yet.
#pragma once

#include "sdk/ffmpeg/internal/avpointers.h"

#include <cstdint>
#include <deque>
#include <optional>

namespace sdk::ffmpeg {

/// Keeps packets in their order and drops late ones. Times are in milliseconds since any start. Not
/// thread-safe.
class PacketBacklog
{
public:
    /// With a longer delay, the stream is read ahead to find the next key frame, and non-reference frames are
    /// dropped.
    static constexpr std::int64_t noticeableDelay = 100;

    /// With a longer delay, packets before the newest key frame are dropped.
    static constexpr std::int64_t skippedDelay = 250;

    /// With a longer delay, all packets are dropped if a key frame is expected within `shortWait`: the image
    /// freezes until then.
    static constexpr std::int64_t longDelay = 400;
    static constexpr std::int64_t shortWait = 700;

    /// With a longer delay, all packets up to the next key frame are dropped.
    static constexpr std::int64_t longestDelay = 3000;

    /// The timeout for a key frame is the longer one of this and twice the last interval of key frames. A
    /// stream may have no key frame after its first: it is then shown late, without drops until a key frame
    /// arrives.
    static constexpr std::int64_t longestWait = 5000;

    /// Adds a packet that arrived at `arrival`.
    void add(AvPointer<AVPacket> packet, bool isVideo, std::int64_t arrival);

    [[nodiscard]] bool isEmpty() const { return m_entries.empty(); }

    /// The total size of the packets.
    [[nodiscard]] std::size_t bytes() const { return m_bytes; }

    /// The delay of the next packet; 0 without one.
    [[nodiscard]] std::int64_t delay(std::int64_t now) const;

    struct Skip
    {
        int frames = 0;             ///< number of dropped frames
        bool isInterrupted = false; ///< the next frame does not follow the last taken one
    };

    /// Drops late packets.
    [[nodiscard]] Skip skip(std::int64_t now);

    /// Removes and returns the next packet. Requires one.
    [[nodiscard]] AvPointer<AVPacket> take();

private:
    struct Entry
    {
        AvPointer<AVPacket> packet;
        bool isVideo;
        std::int64_t arrival;

        [[nodiscard]] bool isKeyFrame() const { return isVideo && (packet->flags & AV_PKT_FLAG_KEY) != 0; }
        [[nodiscard]] std::size_t bytes() const { return static_cast<std::size_t>(packet->size); }
    };
    using Entries = std::deque<Entry>;

    [[nodiscard]] bool isKeyFrameExpected(std::int64_t now) const;

    // These return the number of dropped frames.
    int dropBefore(const Entries::iterator &end);
    int dropFrames();

    Entries m_entries;
    std::size_t m_bytes = 0;
    bool m_waitsForKey = false;   // frames before the next key frame are dropped
    std::int64_t m_waitStart = 0; // start of the wait for a key frame
    bool m_hasTimedOut = false;   // the wait has timed out, and no key frame has arrived since
    std::optional<std::int64_t> m_lastKeyArrival;
    std::int64_t m_keyInterval = 2000; // between the last two key frames; initially a typical value
};

} // namespace sdk::ffmpeg
