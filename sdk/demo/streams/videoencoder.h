// Encodes the video of a live stream.
#pragma once

#include "sdk/demo/device/streamsettings.h"
#include "sdk/demo/streams/avpointers.h"

namespace sdk::demo {

/// Not thread-safe. Every frame is output immediately, without look-ahead.
class VideoEncoder
{
public:
    /// Returns null and logs the reason if the host has no encoder for `settings`.
    [[nodiscard]] static std::unique_ptr<VideoEncoder> open(const StreamSettings &settings);
    ~VideoEncoder();
    VideoEncoder(const VideoEncoder &) = delete;
    VideoEncoder &operator=(const VideoEncoder &) = delete;

    [[nodiscard]] const AVCodecContext &context() const { return *m_context; }

    /// Encodes `frame`, which has the size and format of context(), as the frame with the index `number`,
    /// which follows from the elapsed time. With `isKey` it is a key frame. Appends it to `packets`.
    /// Returns false on failure.
    [[nodiscard]] bool encode(AVFrame &frame, std::int64_t number, bool isKey, EncodedPackets &packets);

private:
    explicit VideoEncoder(AvPointer<AVCodecContext> context) : m_context(std::move(context)) {}

    AvPointer<AVCodecContext> m_context;
};

/// Moves the output of `context` to `packets`, as packets of `track`. Returns false on failure.
[[nodiscard]] bool receivePackets(AVCodecContext &context, int track, EncodedPackets &packets);

} // namespace sdk::demo
