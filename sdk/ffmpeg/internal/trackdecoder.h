// Decodes the pictures or the sound of a stream.
#pragma once

#include "sdk/ffmpeg/internal/avpointers.h"

#include <functional>
#include <utility>

namespace sdk::ffmpeg {

/// Bounds of pictures: what the largest level of H.264 allows. Larger ones are announced by nobody but a
/// damaged or hostile stream.
inline constexpr int longestSide = 8192;
inline constexpr std::int64_t mostPixels = std::int64_t{8192} * 4320;

[[nodiscard]] constexpr bool isUsableSize(std::int64_t width, std::int64_t height)
{
    return width > 0 && height > 0 && width <= longestSide && height <= longestSide &&
           width * height <= mostPixels;
}

/// On one thread. It needs none of its own: more of them hold pictures back.
class TrackDecoder
{
public:
    /// Returns null when the track cannot be decoded.
    [[nodiscard]] static std::unique_ptr<TrackDecoder> open(const AVStream &track);

    /// Called with each whole frame; it ends with the call.
    using FrameHandler = std::function<void(const AVFrame &)>;

    /// Decodes a piece of the track. Returns false when it was damaged.
    [[nodiscard]] bool decode(const AVPacket &packet, const FrameHandler &handler);

    /// The next piece does not follow on the last one; it is a frame that needs no earlier one. Frames that
    /// wait for others to come before them are left out.
    void restart();

    /// While it is hurried, it leaves out frames that no other one needs.
    void setHurried(bool isHurried);

    /// Brings the frames that wait for others to come before them. Nothing can be decoded after that.
    void finish(const FrameHandler &handler);

    /// The frames that were left out since the last call, without those of damaged pieces.
    [[nodiscard]] int takeLeftOut() { return std::exchange(m_leftOut, 0); }

    [[nodiscard]] int track() const { return m_track; }
    [[nodiscard]] AVCodecID codec() const { return m_context->codec_id; }

    /// Pictures a second, rounded, as container or pictures say; 0 when neither does.
    [[nodiscard]] int pictureRate() const;

private:
    TrackDecoder(AvPointer<AVCodecContext> context, AvPointer<AVFrame> frame, const AVStream &track);
    [[nodiscard]] bool takeFrames(const FrameHandler &handler);

    const AvPointer<AVCodecContext> m_context;
    const AvPointer<AVFrame> m_frame;
    const int m_track;
    const AVRational m_containerRate;
    bool m_waitsForKey;
    int m_held = 0; ///< frames that wait for others to come before them
    int m_leftOut = 0;
};

} // namespace sdk::ffmpeg
