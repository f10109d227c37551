// The encoding of a live stream, from the settings of its channel.
#pragma once

#include "sdk/demo/scene/scene.h"
#include "sdk/streamblocks.h"

namespace sdk::demo {

enum class StreamCodec
{
    H264,
    H265,
    MotionJpeg,
};

enum class SoundCodec
{
    None, ///< the stream has no audio
    G711A,
    G711Mu,
    Aac,
    Pcm,
};

/// The encoding of a live stream. All values are within the ranges that the encoders support.
struct StreamSettings
{
    StreamCodec codec = StreamCodec::H264;
    int width = 0;        ///< in pixels, even
    int height = 0;       ///< in pixels, even
    double frameRate = 0; ///< frames a second, 1 to 60
    int bitRate = 0;      ///< kbit/s
    SoundCodec sound = SoundCodec::None;
    int samplingFrequency = 0; ///< Hz; 0 without audio

    bool operator==(const StreamSettings &) const = default;
};

/// The encoding by the EncodeItems of a channel (from 0). Rates out of range are clamped. A compression other
/// than H.264, H.265 and MJPEG is encoded as H.264; an unsupported audio format is left out.
///
/// Returns nullopt if the device has no such stream: the channel does not exist or is not connected, its
/// video is disabled, or a side is not 64 to 8192 pixels.
[[nodiscard]] std::optional<StreamSettings> streamSettings(const SceneDevice &device, std::int32_t channel,
                                                           LiveStreamKind kind);

} // namespace sdk::demo
