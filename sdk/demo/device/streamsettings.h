// How a simulated device encodes a live stream, by the settings of its channel.
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
    None,
    G711A,
    G711Mu,
    Aac,
    Pcm,
};

struct StreamSettings
{
    StreamCodec codec = StreamCodec::H264;
    int width = 0; ///< in pixels, even
    int height = 0;
    double frameRate = 0; ///< pictures a second
    int bitRate = 0;      ///< kbit/s
    SoundCodec sound = SoundCodec::None;
    int samplingFrequency = 0; ///< Hz

    bool operator==(const StreamSettings &) const = default;
};

/// Nothing when the device has no such stream: the channel is not there or not connected, its picture is
/// switched off, or of a size that no encoder makes.
[[nodiscard]] std::optional<StreamSettings> streamSettings(const SceneDevice &device, std::int32_t channel,
                                                           LiveStreamKind kind);

} // namespace sdk::demo
