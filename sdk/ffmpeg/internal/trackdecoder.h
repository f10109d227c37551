// The decoder of a stream's video or audio track.
#pragma once

#include "sdk/ffmpeg/internal/avpointers.h"

#include <functional>
#include <utility>

namespace sdk::ffmpeg {

/// The limits of image sizes, those of the highest level of H.264. Only damaged or malicious streams exceed
/// them.
inline constexpr int longestSide = 8192;
inline constexpr std::int64_t mostPixels = std::int64_t{8192} * 4320;

[[nodiscard]] constexpr bool isUsableSize(std::int64_t width, std::int64_t height)
{
    return width > 0 && height > 0 && width <= longestSide && height <= longestSide &&
           width * height <= mostPixels;
}

/// Not thread-safe. It has no threads: frame threading would delay frames.
class TrackDecoder
{
public:
    /// Returns null if the track cannot be decoded.
    [[nodiscard]] static std::unique_ptr<TrackDecoder> open(const AVStream &track);

    /// Called with each undamaged frame, which is valid during the call.
    using FrameHandler = std::function<void(const AVFrame &)>;

    /// Decodes a packet of the track. Returns false if it is damaged.
    [[nodiscard]] bool decode(const AVPacket &packet, const FrameHandler &handler);

    /// Prepares for a key frame that does not follow the last packet. Frames in the reorder buffer are
    /// dropped.
    void restart();

    /// In hurried mode, non-reference frames are dropped.
    void setHurried(bool isHurried);

    /// Delivers the frames in the reorder buffer. No further packets can be decoded.
    void finish(const FrameHandler &handler);

    /// The number of frames that were dropped since the last call, without those of damaged packets.
    [[nodiscard]] int takeDropped() { return std::exchange(m_dropped, 0); }

    [[nodiscard]] int track() const { return m_track; }
    [[nodiscard]] AVCodecID codec() const { return m_context->codec_id; }

    /// The rounded frame rate from the container or the codec; 0 if unknown.
    [[nodiscard]] int frameRate() const;

private:
    TrackDecoder(AvPointer<AVCodecContext> context, AvPointer<AVFrame> frame, const AVStream &track);
    [[nodiscard]] bool takeFrames(const FrameHandler &handler);

    const AvPointer<AVCodecContext> m_context;
    const AvPointer<AVFrame> m_frame;
    const int m_track;
    const AVRational m_containerRate;
    bool m_waitsForKey;
    int m_held = 0; ///< frames in the reorder buffer
    int m_dropped = 0;
};

} // namespace sdk::ffmpeg
