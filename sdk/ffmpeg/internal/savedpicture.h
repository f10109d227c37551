// Pictures as files.
#pragma once

#include "sdk/decoderlibrary.h"

#include <cstdint>

class QString;

namespace sdk::ffmpeg {

/// Writes a picture (bytes as DecodedFrameType::Picture) as JPEG to `path`, in place of what is there, or
/// leaves that as it was. `quality` is 1 to 100. Returns false when it cannot be written.
[[nodiscard]] bool savePicture(const std::uint8_t *picture, int width, int height, PictureColour colour,
                               int quality, const QString &path);

} // namespace sdk::ffmpeg
