// Pieces of a live stream that are read and not decoded yet.
#pragma once

#include "sdk/ffmpeg/internal/avpointers.h"

#include <cstdint>
#include <deque>
#include <optional>

namespace sdk::ffmpeg {

/// Keeps pieces in their order, and leaves out what is too late for a live picture. A picture that needs no
/// earlier one is called a key picture. Times are in milliseconds from any starting point. On one thread.
class PacketBacklog
{
public:
    /// A stream that is later than this is read ahead, to find the next key picture, and pictures that no
    /// other one needs are left out.
    static constexpr std::int64_t noticeableDelay = 100;

    /// Beyond this, what comes before the newest key picture is left out.
    static constexpr std::int64_t skippedDelay = 250;

    /// Beyond this, everything is left out when a key picture is expected within `shortWait`: the picture
    /// stands still so long.
    static constexpr std::int64_t longDelay = 400;
    static constexpr std::int64_t shortWait = 700;

    /// Beyond this, everything is left out up to the next key picture.
    static constexpr std::int64_t longestDelay = 3000;

    /// A key picture is not waited for longer than this, or than twice the time between the last two. A
    /// stream may have none after its first: it is then shown late, and not skipped until a key picture
    /// comes.
    static constexpr std::int64_t longestWait = 5000;

    /// Takes a piece that arrived at `arrival`.
    void add(AvPointer<AVPacket> packet, bool isPicture, std::int64_t arrival);

    [[nodiscard]] bool isEmpty() const { return m_pieces.empty(); }

    /// Of the pieces together.
    [[nodiscard]] std::size_t bytes() const { return m_bytes; }

    /// How late the next piece is; 0 without one.
    [[nodiscard]] std::int64_t delay(std::int64_t now) const;

    struct Skip
    {
        int pictures = 0;           ///< that were left out
        bool isInterrupted = false; ///< the next picture does not follow on the one that was taken last
    };

    /// Leaves out what is too late.
    [[nodiscard]] Skip skip(std::int64_t now);

    /// The next piece. There must be one.
    [[nodiscard]] AvPointer<AVPacket> take();

private:
    struct Piece
    {
        AvPointer<AVPacket> packet;
        bool isPicture;
        std::int64_t arrival;

        [[nodiscard]] bool isKeyPicture() const
        {
            return isPicture && (packet->flags & AV_PKT_FLAG_KEY) != 0;
        }
        [[nodiscard]] std::size_t bytes() const { return static_cast<std::size_t>(packet->size); }
    };
    using Pieces = std::deque<Piece>;

    [[nodiscard]] bool isKeyPictureExpected(std::int64_t now) const;

    // They return how many pictures were left out.
    int dropBefore(const Pieces::iterator &end);
    int dropPictures();

    Pieces m_pieces;
    std::size_t m_bytes = 0;
    bool m_waitsForKey = false;   // pictures before the next key picture are left out
    std::int64_t m_waitBegin = 0; // of the wait for a key picture
    bool m_waitedInVain = false;  // no key picture has come since
    std::optional<std::int64_t> m_lastKeyArrival;
    std::int64_t m_keyInterval = 2000; // between the last two key pictures; until then what is usual
};

} // namespace sdk::ffmpeg
