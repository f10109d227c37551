// A test card as a still image.
#pragma once

#include "sdk/demo/streams/testcard.h"

#include <QByteArray>

namespace sdk::demo {

/// The card at `time` (ms since 1970) of the device's clock, as the bytes of a JPEG file. `brightness` is 0
/// to 100: 50 leaves the colours unchanged, less darkens them, more brightens them. Empty on failure.
[[nodiscard]] QByteArray cardJpeg(const TestCard &card, std::int64_t time, int brightness);

} // namespace sdk::demo
