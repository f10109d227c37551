// Decoded pictures as they are delivered.
#pragma once

#include "sdk/decoderlibrary.h"
#include "sdk/ffmpeg/internal/avpointers.h"

namespace sdk::ffmpeg {

/// On one thread.
class PictureConverter
{
public:
    /// Writes the picture's pictureSize() bytes to `destination`: copied when it is planar 4:2:0 of 8 bits,
    /// converted otherwise. Returns false when it cannot be converted.
    [[nodiscard]] bool write(const AVFrame &frame, std::uint8_t *destination);

    /// What the written bytes mean.
    [[nodiscard]] static PictureColour colourOf(const AVFrame &frame);

private:
    [[nodiscard]] bool convert(const AVFrame &frame);

    AvPointer<SwsContext> m_scaler;
    AvPointer<AVFrame> m_converted; // its lines are padded, which the scaler writes to
};

} // namespace sdk::ffmpeg
