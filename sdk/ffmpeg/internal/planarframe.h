// The layout of images: planes as in DecodedFrameType::Video, and FFmpeg's frames with padded lines.
#pragma once

#include "sdk/ffmpeg/internal/avpointers.h"

namespace sdk::ffmpeg {

inline constexpr int planes = 3; // Y, U, V

/// The size of one plane, in samples of one byte.
struct PlaneSize
{
    int width;
    int height;

    [[nodiscard]] std::size_t bytes() const
    {
        return static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    }
};

/// The size of the plane with this index (0 is Y, 1 is U, 2 is V) of an image of width x height pixels.
[[nodiscard]] constexpr PlaneSize planeSize(int plane, int width, int height)
{
    return plane == 0 ? PlaneSize{width, height} : PlaneSize{(width + 1) / 2, (height + 1) / 2};
}

/// The size of a complete image in bytes.
[[nodiscard]] inline std::size_t frameSize(int width, int height)
{
    return planeSize(0, width, height).bytes() + 2 * planeSize(1, width, height).bytes();
}

/// A frame of this size in pixels, with its own memory. Its lines are padded: the scaler may write beyond the
/// ends of lines. The memory is not initialised. Null if there is no memory.
[[nodiscard]] AvPointer<AVFrame> paddedFrame(AVPixelFormat format, int width, int height);

/// Copies a planar 4:2:0 frame with 8 bits to `destination`, as DecodedFrameType::Video: frameSize() bytes
/// without padding.
void copyPlanes(const AVFrame &frame, std::uint8_t *destination);

/// Copies frameSize() bytes, as DecodedFrameType::Video, to `frame`, whose size and format are set.
void copyPlanes(const std::uint8_t *source, AVFrame &frame);

} // namespace sdk::ffmpeg
