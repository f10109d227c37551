// Saves images as files.
#pragma once

#include "sdk/decoderlibrary.h"

#include <cstdint>

class QString;

namespace sdk::ffmpeg {

/// Writes an image (planes of Y, U and V as DecodedFrameType::Video, not null) as JPEG to `path`. `width` and
/// `height` are in pixels, 1 to 8192, with at most 8192 x 4320 pixels (isUsableSize()). `colour` is the
/// colour space of the image. `quality` is 1 to 100. The folder of `path` must exist. An existing file is
/// replaced. Blocks until the file is written. Returns false on failure: an existing file is unchanged then.
/// A failure to write the file is logged with its reason. Thread-safe for different paths.
[[nodiscard]] bool saveFrame(const std::uint8_t *frame, int width, int height, FrameColour colour,
                             int quality, const QString &path);

} // namespace sdk::ffmpeg
