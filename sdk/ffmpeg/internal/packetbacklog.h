// Packets of a live stream that are read and not decoded yet.
#pragma once

#include "sdk/ffmpeg/internal/avpointers.h"

#include <cstdint>
#include <deque>
#include <optional>

namespace sdk::ffmpeg {

/// Keeps encoded packets in their order, and drops late ones when skip() is called. The delay is the time
/// since the arrival of the next packet, the one that take() returns. Times are in milliseconds on one clock.
/// Not thread-safe.
class PacketBacklog
{
public:
    /// With a longer delay, StreamDecoder reads ahead to find the next key frame, and does not decode frames
    /// that no other frame refers to. skip() does not use it.
    static constexpr std::int64_t noticeableDelay = 100;

    /// With a longer delay, packets before the newest key frame in the backlog are dropped. The constants
    /// below apply to a backlog without a key frame.
    static constexpr std::int64_t skippedDelay = 250;

    /// With a longer delay, all packets are dropped if the next key frame is expected within `shortWait`, or
    /// is overdue for at most `shortWait`. Video that follows is dropped up to a key frame: the image freezes
    /// until then.
    static constexpr std::int64_t longDelay = 400;
    static constexpr std::int64_t shortWait = 700;

    /// With a longer delay, all packets are dropped at any time. Video that follows is dropped up to a key
    /// frame.
    static constexpr std::int64_t longestDelay = 3000;

    /// The timeout of the wait for a key frame is the longer one of this and twice the last interval of key
    /// frames. A stream may have no key frame after its first: after the timeout it is shown late, and
    /// nothing is dropped until a key frame arrives.
    static constexpr std::int64_t longestWait = 5000;

    /// Adds a packet (not null) that arrived at `arrival`. `isVideo` is false for a packet of any other
    /// track.
    void add(AvPointer<AVPacket> packet, bool isVideo, std::int64_t arrival);

    [[nodiscard]] bool isEmpty() const { return m_entries.empty(); }

    /// The total size of the packets in bytes.
    [[nodiscard]] std::size_t bytes() const { return m_bytes; }

    /// The delay of the next packet at the time `now`; 0 if the backlog is empty.
    [[nodiscard]] std::int64_t delay(std::int64_t now) const;

    /// The result of skip().
    struct Skip
    {
        int frames = 0;             ///< number of dropped frames of video
        bool isInterrupted = false; ///< the next video packet may not follow the last one that was taken:
                                    ///< the decoder must be restarted
    };

    /// Drops the late packets at the time `now`, which may leave the backlog empty. To be called before each
    /// take() of a live stream.
    [[nodiscard]] Skip skip(std::int64_t now);

    /// Removes and returns the next packet. The backlog must not be empty.
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
