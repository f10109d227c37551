// Converts decoded frames to the format of delivery.
#pragma once

#include "sdk/decoderlibrary.h"
#include "sdk/ffmpeg/internal/avpointers.h"

namespace sdk::ffmpeg {

/// Not thread-safe.
class FrameConverter
{
public:
    /// Writes the frame's frameSize() bytes to `destination`. Planar 4:2:0 with 8 bits is copied, other
    /// formats are converted. Returns false if the conversion fails.
    [[nodiscard]] bool write(const AVFrame &frame, std::uint8_t *destination);

    /// The colour space of the written bytes.
    [[nodiscard]] static FrameColour colourOf(const AVFrame &frame);

private:
    [[nodiscard]] bool convert(const AVFrame &frame);

    AvPointer<SwsContext> m_scaler;
    AvPointer<AVFrame> m_converted; // with padded lines: the scaler writes beyond their ends
};

} // namespace sdk::ffmpeg
