// The tokens of a device's streams and sources: the identifiers by which clients refer to them. They are
// constant. Their numbers are those of the channels, from 1: "VideoSource_1" for channel 0.
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

    /// The stream's kind in the encoder items.
    [[nodiscard]] sdk::StreamKind encodeKind() const
    {
        return kind == sdk::LiveStreamKind::Sub ? sdk::StreamKind::Sub : sdk::StreamKind::MainNormal;
    }
};

/// The object of a token: the profile of a stream, or one of its encoders.
enum class MediaObject
{
    Profile,
    VideoEncoder,
    AudioEncoder,
};

/// The token of an object of the stream: "Profile_1_main", "VideoEncoder_1_sub".
[[nodiscard]] QString tokenOf(MediaObject object, const MediaStream &stream);

// `channel` is from 0.
[[nodiscard]] QString videoSourceToken(int channel);
[[nodiscard]] QString videoSourceConfigurationToken(int channel);
[[nodiscard]] QString audioSourceToken(int channel);
[[nodiscard]] QString audioSourceConfigurationToken(int channel);

/// The RTSP path of the stream: "/channel1/main" for channel 0.
[[nodiscard]] QString pathOf(const MediaStream &stream);

/// The number of channels of a device, connected or not; 1 for a device that reports none.
[[nodiscard]] int channelCount(const sdk::demo::SceneDevice &device);
/// Whether the channel (from 0) has a camera; false for a channel that the device does not have, true for the
/// only channel of a device that reports none.
[[nodiscard]] bool isConnected(const sdk::demo::SceneDevice &device, int channel);

/// The main and the sub stream of each channel that has a camera, in the order of the channels.
[[nodiscard]] QList<MediaStream> streamsOf(const sdk::demo::SceneDevice &device);

/// The stream of streamsOf() with this token of `object`; nothing for any other token.
[[nodiscard]] std::optional<MediaStream> streamOf(const sdk::demo::SceneDevice &device, MediaObject object,
                                                  const QString &token);
/// The stream of streamsOf() with this RTSP path; nothing for any other path.
[[nodiscard]] std::optional<MediaStream> streamOfPath(const sdk::demo::SceneDevice &device,
                                                      const QString &path);
/// The channel (from 0, connected or not) of a video source's token; nothing for any other token.
[[nodiscard]] std::optional<int> channelOf(const sdk::demo::SceneDevice &device, const QString &token);

} // namespace site
