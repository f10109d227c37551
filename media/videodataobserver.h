#pragma once

#include "sdk/decoderlibrary.h"

#include <cstdint>

/// Gets what a CDHDecoder decodes.
class VideoDataObserver
{
public:
    virtual ~VideoDataObserver() = default;

    /// Called with a picture or a piece of sound, on the decoder's thread. How long the bytes last is said at
    /// sdk::DecodeHandler. `width` and `height` are 0 for sound; `rate` is pictures a second or samples a
    /// second; `reserved` is 0.
    virtual void onDecodedFrame(const std::uint8_t *data, std::int32_t size, std::int32_t width,
                                std::int32_t height, sdk::DecodedFrameType type, std::int32_t rate,
                                std::int32_t reserved) = 0;
};
