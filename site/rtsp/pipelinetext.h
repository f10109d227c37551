// GStreamer pipelines that packetize streams for RTP.
#pragma once

#include "sdk/demo/device/streamsettings.h"

#include <QByteArray>

namespace site {

/// The description of a pipeline for gst_parse_launch_full(). It has the sources (elements "appsrc") "video"
/// and, for a stream with sound, "sound", into which the program pushes encoded frames with times. Their
/// payloaders have the names that the RTSP server expects: "pay0" for the video, "pay1" for the sound.
[[nodiscard]] QByteArray pipelineText(const sdk::demo::StreamSettings &settings);

/// Whether the stream has sound. All sound codecs of StreamSettings can be streamed.
[[nodiscard]] bool hasStreamedSound(const sdk::demo::StreamSettings &settings);

// The format of the frames of a source, for gst_caps_from_string().

/// For the source "sound"; empty for a stream without sound. `head` is the decoder configuration of AAC; it
/// is not used for other codecs.
[[nodiscard]] QByteArray soundCaps(const sdk::demo::StreamSettings &settings, const QByteArray &head);

/// For the source "video".
[[nodiscard]] QByteArray videoCaps(const sdk::demo::StreamSettings &settings);

} // namespace site
