#pragma once

/// Why a decoded frame cannot be drawn.
enum class DrawingError
{
    None,
    NoShaders, ///< the shader files are missing, or the graphics driver rejects them
    TooLarge,  ///< the frame exceeds the graphics driver's texture size
};
