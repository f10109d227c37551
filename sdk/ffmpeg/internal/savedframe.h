// Saves images as files.
#pragma once

#include "sdk/decoderlibrary.h"

#include <cstdint>

class QString;

namespace sdk::ffmpeg {

/// Writes an image (bytes as DecodedFrameType::Video) as JPEG to `path`. It replaces an existing file
/// completely or not at all. `quality` is 1 to 100. Returns false on failure.
[[nodiscard]] bool saveFrame(const std::uint8_t *frame, int width, int height, FrameColour colour,
                             int quality, const QString &path);

} // namespace sdk::ffmpeg
