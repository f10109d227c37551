// FrameColour in FFmpeg's terms.
#pragma once

#include "sdk/decoderlibrary.h"
#include "sdk/ffmpeg/internal/avpointers.h"

namespace sdk::ffmpeg {

[[nodiscard]] constexpr bool isBt709(FrameColour colour)
{
    return colour == FrameColour::Bt709Limited || colour == FrameColour::Bt709Full;
}

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
