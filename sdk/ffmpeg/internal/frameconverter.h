// Converts decoded frames to the format of DecodedFrameType::Video.
#pragma once

#include "sdk/decoderlibrary.h"
#include "sdk/ffmpeg/internal/avpointers.h"

namespace sdk::ffmpeg {

/// Keeps FFmpeg's scaler for the next frame of the same size and format. Not thread-safe.
class FrameConverter
{
public:
    /// Writes the image as DecodedFrameType::Video (planes of Y, U and V, 4:2:0, without padding) to
    /// `destination`, which has frameSize(width, height) bytes (planarframe.h). Width and height do not
    /// change. Planar 4:2:0 with 8 bits is copied, other formats are converted. Returns false, with nothing
    /// written, if the conversion fails.
    [[nodiscard]] bool write(const AVFrame &frame, std::uint8_t *destination);

    /// The colour space of the bytes that write() writes: that of the frame, or usualFrameColour() of its
    /// height for an RGB frame. A frame that reports no matrix or another one than those of BT.601, BT.709
    /// and BT.2020 has that of usualFrameColour(); one that reports no range has the limited range, except in
    /// the formats "YUVJ". BT.2020 counts as BT.709, FCC as BT.601.
    [[nodiscard]] static FrameColour colourOf(const AVFrame &frame);

private:
    [[nodiscard]] bool convert(const AVFrame &frame);

    AvPointer<SwsContext> m_scaler;
    AvPointer<AVFrame> m_converted; // with padded lines: the scaler writes beyond their ends
};

} // namespace sdk::ffmpeg
