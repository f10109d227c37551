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

/// True for a size in pixels within these limits.
[[nodiscard]] constexpr bool isUsableSize(std::int64_t width, std::int64_t height)
{
    return width > 0 && height > 0 && width <= longestSide && height <= longestSide &&
           width * height <= mostPixels;
}

/// Decodes the packets of one track on the calling thread: FFmpeg's threads would delay frames. FFmpeg's
/// reorder buffer keeps decoded frames until the frames before them in time are decoded. Not thread-safe.
class TrackDecoder
{
public:
    /// Returns null if FFmpeg has no decoder for the track or cannot open it. `track` is used during the call
    /// only.
    [[nodiscard]] static std::unique_ptr<TrackDecoder> open(const AVStream &track);

    /// Called with each frame that FFmpeg does not mark as damaged. The frame is valid during the call.
    using FrameHandler = std::function<void(const AVFrame &)>;

    /// Decodes a packet of the track, and calls `handler` for each frame that is complete. That may be none:
    /// frames in the reorder buffer follow later. `packet` stays the caller's. Returns false for a damaged
    /// packet, and if an H.265 frame refers to missing frames; `handler` may have been called then. H.265
    /// packets before the first key frame are dropped with the result true.
    [[nodiscard]] bool decode(const AVPacket &packet, const FrameHandler &handler);

    /// To be called before a packet that does not follow the last decoded one. Frames in the reorder buffer
    /// are dropped, and are counted by takeDropped().
    void restart();

    /// In hurried mode, frames that no other frame refers to are not decoded, and are counted by
    /// takeDropped(). Initially off.
    void setHurried(bool isHurried);

    /// Calls `handler` for the frames in the reorder buffer. decode() must not be called afterwards.
    void finish(const FrameHandler &handler);

    /// The number of frames that restart() and the hurried mode have dropped since the last call. Damaged
    /// frames are not counted.
    [[nodiscard]] int takeDropped() { return std::exchange(m_dropped, 0); }

    /// AVPacket::stream_index of the packets of the track.
    [[nodiscard]] int track() const { return m_track; }
    [[nodiscard]] AVCodecID codec() const { return m_context->codec_id; }

    /// The rounded frame rate of the container, or of the codec if the container has none, in frames per
    /// second. A rate over 1000 counts as missing. 0 if there is none.
    [[nodiscard]] int frameRate() const;

private:
    TrackDecoder(AvPointer<AVCodecContext> context, AvPointer<AVFrame> frame, const AVStream &track);
    [[nodiscard]] bool takeFrames(const FrameHandler &handler);

    const AvPointer<AVCodecContext> m_context;
    const AvPointer<AVFrame> m_frame;
    const int m_track;
    const AVRational m_containerRate;
    bool m_waitsForKey; ///< packets before the first key frame are dropped
    int m_held = 0;     ///< frames in the reorder buffer
    int m_dropped = 0;
};

} // namespace sdk::ffmpeg
