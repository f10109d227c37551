// The tokens of a device's streams.
#pragma once

#include "sdk/demo/scene/scene.h"
#include "sdk/encodeblocks.h"
#include "sdk/streamblocks.h"

#include <QList>

#include <compare>
#include <optional>

namespace site {

/// One stream of one channel.
struct MediaStream
{
    int channel = 0; ///< from 0
    sdk::LiveStreamKind kind = sdk::LiveStreamKind::Main;

    auto operator<=>(const MediaStream &) const = default;

    [[nodiscard]] sdk::StreamKind encodeKind() const
    {
        return kind == sdk::LiveStreamKind::Sub ? sdk::StreamKind::Sub : sdk::StreamKind::MainNormal;
    }
};

/// The object of a token.
enum class MediaObject
{
    Profile,
    VideoEncoder,
    AudioEncoder,
};

/// "Profile_1_main", "VideoEncoder_1_sub"
[[nodiscard]] QString tokenOf(MediaObject object, const MediaStream &stream);
// The numbers in tokens and paths start at 1: "VideoSource_1" for channel 0.
[[nodiscard]] QString videoSourceToken(int channel);
[[nodiscard]] QString videoSourceConfigurationToken(int channel);
[[nodiscard]] QString audioSourceToken(int channel);
[[nodiscard]] QString audioSourceConfigurationToken(int channel);

/// "/channel1/main": the RTSP path of the stream.
[[nodiscard]] QString pathOf(const MediaStream &stream);

/// The number of channels of a device, connected or not; 1 for a device that reports none.
[[nodiscard]] int channelCount(const sdk::demo::SceneDevice &device);
/// False for a channel that the device does not have.
[[nodiscard]] bool isConnected(const sdk::demo::SceneDevice &device, int channel);

/// The streams of all channels that have a camera.
[[nodiscard]] QList<MediaStream> streamsOf(const sdk::demo::SceneDevice &device);

// Nothing for an unknown token.
[[nodiscard]] std::optional<MediaStream> streamOf(const sdk::demo::SceneDevice &device, MediaObject object,
                                                  const QString &token);
[[nodiscard]] std::optional<MediaStream> streamOfPath(const sdk::demo::SceneDevice &device,
                                                      const QString &path);
/// The channel of a video source.
[[nodiscard]] std::optional<int> channelOf(const sdk::demo::SceneDevice &device, const QString &token);

} // namespace site
