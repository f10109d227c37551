// PictureColour in FFmpeg's terms.
#pragma once

#include "sdk/decoderlibrary.h"
#include "sdk/ffmpeg/internal/avpointers.h"

namespace sdk::ffmpeg {

[[nodiscard]] constexpr bool isBt709(PictureColour colour)
{
    return colour == PictureColour::Bt709Limited || colour == PictureColour::Bt709Full;
}

[[nodiscard]] constexpr bool isFullRange(PictureColour colour)
{
    return colour == PictureColour::Bt601Full || colour == PictureColour::Bt709Full;
}

/// Coefficients for the scaler.
[[nodiscard]] inline const int *colourMatrix(PictureColour colour)
{
    return sws_getCoefficients(isBt709(colour) ? SWS_CS_ITU709 : SWS_CS_ITU601);
}

} // namespace sdk::ffmpeg
