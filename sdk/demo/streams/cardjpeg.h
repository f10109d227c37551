// A test card as a still picture.
#pragma once

#include "sdk/demo/streams/testcard.h"

#include <QByteArray>

namespace sdk::demo {

/// The card as it looks at `time` (ms since 1970) of the device's own clock, as a JPEG file. A brightness of
/// 50 percent leaves the colours as they are. Empty when it cannot be encoded.
[[nodiscard]] QByteArray cardJpeg(const TestCard &card, std::int64_t time, int brightness);

} // namespace sdk::demo
