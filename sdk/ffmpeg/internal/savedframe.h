// Saves images as files.
#pragma once

#include "sdk/decoderlibrary.h"

#include <cstdint>

class QString;

namespace sdk::ffmpeg {

/// Writes an image (bytes as DecodedFrameType::Video, not null) as JPEG to `path`. `width` and `height` are
/// in pixels and satisfy isUsableSize(). `quality` is 1 to 100. The folder of `path` must exist. An existing
/// file is replaced. Returns false on failure: an existing file is unchanged then. A failure to write the
/// file is logged with its reason. Thread-safe for different paths.
[[nodiscard]] bool saveFrame(const std::uint8_t *frame, int width, int height, FrameColour colour,
                             int quality, const QString &path);

} // namespace sdk::ffmpeg
