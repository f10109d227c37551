// GStreamer pipelines that packetize streams for RTP.
#pragma once

#include "sdk/demo/device/streamsettings.h"

#include <QByteArray>

namespace site {

/// The description of a pipeline with the sources (elements "appsrc") "video" and, for a stream with
/// sound, "sound", which take encoded frames.
[[nodiscard]] QByteArray pipelineText(const sdk::demo::StreamSettings &settings);

/// Whether the stream has sound. All sound codecs of the settings can be streamed.
[[nodiscard]] bool hasStreamedSound(const sdk::demo::StreamSettings &settings);

/// The caps of the source "sound"; empty for a stream without sound. `head` is the decoder configuration of
/// AAC; it is not used for other codecs.
[[nodiscard]] QByteArray soundCaps(const sdk::demo::StreamSettings &settings, const QByteArray &head);

/// The caps of the source "video".
[[nodiscard]] QByteArray videoCaps(const sdk::demo::StreamSettings &settings);

} // namespace site
