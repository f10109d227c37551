// The encoding of a live stream, from the settings of its channel.
#pragma once

#include "sdk/demo/scene/scene.h"
#include "sdk/streamblocks.h"

namespace sdk::demo {

/// The codec of a stream's video.
enum class StreamCodec
{
    H264,
    H265,
    MotionJpeg,
};

/// The codec of a stream's audio, which has one channel.
enum class SoundCodec
{
    None,   ///< the stream has no audio
    G711A,  ///< A-law
    G711Mu, ///< u-law
    Aac,
    Pcm, ///< 16 bits
};

/// The encoding of a live stream. All values are within the ranges that the encoders support.
struct StreamSettings
{
    StreamCodec codec = StreamCodec::H264;
    int width = 0;        ///< in pixels, even
    int height = 0;       ///< in pixels, even
    double frameRate = 0; ///< frames a second, 1 to 60
    int bitRate = 0;      ///< kbit/s, 16 to 65536
    SoundCodec sound = SoundCodec::None;
    int samplingFrequency = 0; ///< Hz, 8000 to 48000; 0 without audio

    bool operator==(const StreamSettings &) const = default;
};

/// The encoding by the EncodeItems of a channel (from 0), those of StreamKind::MainNormal for
/// LiveStreamKind::Main. Rates out of range are clamped. A compression other than H.264, H.265 and MJPEG is
/// encoded as H.264; with an unsupported audio format, the stream has no audio.
///
/// Returns nullopt if the device has no such stream: the channel does not exist or is not connected, its
/// video is disabled, or a side is not 64 to 8192 pixels.
[[nodiscard]] std::optional<StreamSettings> streamSettings(const SceneDevice &device, std::int32_t channel,
                                                           LiveStreamKind kind);

} // namespace sdk::demo
