#pragma once

/// Why a decoded picture cannot be drawn.
enum class PictureProblem
{
    None,
    NoShaders, ///< their files are missing, or the graphics driver does not take them
    TooLarge,  ///< for the graphics driver
};
