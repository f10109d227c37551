// The layout of images: planes as in DecodedFrameType::Video, and FFmpeg's frames with padded lines.
#pragma once

#include "sdk/ffmpeg/internal/avpointers.h"

namespace sdk::ffmpeg {

inline constexpr int planes = 3; // Y, U, V

struct PlaneSize
{
    int width;
    int height;

    [[nodiscard]] std::size_t bytes() const
    {
        return static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    }
};

/// The size of a plane (from 0) of an image.
[[nodiscard]] constexpr PlaneSize planeSize(int plane, int width, int height)
{
    return plane == 0 ? PlaneSize{width, height} : PlaneSize{(width + 1) / 2, (height + 1) / 2};
}

/// The size of a complete image in bytes.
[[nodiscard]] inline std::size_t frameSize(int width, int height)
{
    return planeSize(0, width, height).bytes() + 2 * planeSize(1, width, height).bytes();
}

/// A frame with its own memory and padded lines: the scaler may write beyond their ends. Null without memory.
[[nodiscard]] AvPointer<AVFrame> paddedFrame(AVPixelFormat format, int width, int height);

/// Copies a planar 4:2:0 frame to frameSize() bytes without padding, and back.
void copyPlanes(const AVFrame &frame, std::uint8_t *destination);
void copyPlanes(const std::uint8_t *source, AVFrame &frame);

} // namespace sdk::ffmpeg
