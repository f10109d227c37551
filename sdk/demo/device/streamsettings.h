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
    double frameRate = 0; ///< frames a second
    int bitRate = 0;      ///< kbit/s
    SoundCodec sound = SoundCodec::None;
    int samplingFrequency = 0; ///< Hz

    bool operator==(const StreamSettings &) const = default;
};

/// nullopt if the device has no such stream: the channel does not exist or is not connected, its video is
/// disabled, or its size is not supported by an encoder.
[[nodiscard]] std::optional<StreamSettings> streamSettings(const SceneDevice &device, std::int32_t channel,
                                                           LiveStreamKind kind);

} // namespace sdk::demo
