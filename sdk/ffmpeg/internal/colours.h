// FrameColour, the colour space of a frame, in FFmpeg's terms.
#pragma once

#include "sdk/decoderlibrary.h"
#include "sdk/ffmpeg/internal/avpointers.h"

namespace sdk::ffmpeg {

/// True for ITU-R BT.709, false for BT.601.
[[nodiscard]] constexpr bool isBt709(FrameColour colour)
{
    return colour == FrameColour::Bt709Limited || colour == FrameColour::Bt709Full;
}

/// True if Y is 0 to 255, false if it is 16 to 235.
[[nodiscard]] constexpr bool isFullRange(FrameColour colour)
{
    return colour == FrameColour::Bt601Full || colour == FrameColour::Bt709Full;
}

/// The coefficients for sws_setColorspaceDetails(), a constant array of FFmpeg.
[[nodiscard]] inline const int *colourMatrix(FrameColour colour)
{
    return sws_getCoefficients(isBt709(colour) ? SWS_CS_ITU709 : SWS_CS_ITU601);
}

} // namespace sdk::ffmpeg
