// Saves images as files.
#pragma once

#include "sdk/decoderlibrary.h"

#include <cstdint>

class QString;

namespace sdk::ffmpeg {

/// Writes an image (bytes as DecodedFrameType::Picture) as JPEG to `path`. It replaces an existing file
/// completely or not at all. `quality` is 1 to 100. Returns false on failure.
[[nodiscard]] bool savePicture(const std::uint8_t *picture, int width, int height, PictureColour colour,
                               int quality, const QString &path);

} // namespace sdk::ffmpeg
