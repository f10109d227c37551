#pragma once

#include "sdk/decoderlibrary.h"

#include <cstdint>

/// Receives the output of a CDHDecoder.
class VideoDataObserver
{
public:
    virtual ~VideoDataObserver() = default;

    /// Called with a frame of video (planar YUV 4:2:0) or a chunk of audio (16-bit mono samples), on the
    /// decoder's thread. It must not call CDHDecoder::Start() or Stop(). `size` is in bytes. The bytes of
    /// video stay valid until two more frames of video have been delivered or the decoder has stopped. The
    /// bytes of audio are valid during the call. `width` and `height` are in pixels, 0 for audio. `rate` is
    /// in frames per second, 0 if unknown; for audio in samples per second. `reserved` is 0.
    virtual void onDecodedFrame(const std::uint8_t *data, std::int32_t size, std::int32_t width,
                                std::int32_t height, sdk::DecodedFrameType type, std::int32_t rate,
                                std::int32_t reserved) = 0;
};
