// Encodes the video of a live stream.
#pragma once

#include "sdk/demo/device/streamsettings.h"
#include "sdk/demo/streams/avpointers.h"

namespace sdk::demo {

/// Encodes every frame immediately, without look-ahead. Not thread-safe; several encoders may be used at the
/// same time.
class VideoEncoder
{
public:
    /// Returns null and logs the reason if the host has no encoder for the video of `settings`.
    [[nodiscard]] static std::unique_ptr<VideoEncoder> open(const StreamSettings &settings);
    ~VideoEncoder();
    VideoEncoder(const VideoEncoder &) = delete;
    VideoEncoder &operator=(const VideoEncoder &) = delete;

    /// The parameters of the encoding. Owned by this object.
    [[nodiscard]] const AVCodecContext &context() const { return *m_context; }

    /// Encodes `frame`, which has the size and format of context(), and appends it to `packets`. `number` is
    /// the time of the frame, in frame durations since the start of the stream; it increases from call to
    /// call. Overwrites `pts` and `pict_type` of the frame. With `isKey` the frame is a key frame. Without
    /// `isKey` the encoder makes key frames at its own interval, of 2 s at the frame rate of the settings.
    /// Returns false on failure.
    [[nodiscard]] bool encode(AVFrame &frame, std::int64_t number, bool isKey, EncodedPackets &packets);

private:
    explicit VideoEncoder(AvPointer<AVCodecContext> context) : m_context(std::move(context)) {}

    AvPointer<AVCodecContext> m_context;
};

/// Appends the available output of the encoder `context` to `packets`, as packets of `track` (videoTrack or
/// soundTrack). Returns false on failure.
[[nodiscard]] bool receivePackets(AVCodecContext &context, int track, EncodedPackets &packets);

} // namespace sdk::demo
