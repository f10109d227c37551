// A test card as a still image.
#pragma once

#include "sdk/demo/streams/testcard.h"

#include <QByteArray>

namespace sdk::demo {

/// The card at `time` (ms since 1970) of the device's clock, as a JPEG file. A brightness of 50 percent
/// leaves the colours unchanged. Empty on failure.
[[nodiscard]] QByteArray cardJpeg(const TestCard &card, std::int64_t time, int brightness);

} // namespace sdk::demo
