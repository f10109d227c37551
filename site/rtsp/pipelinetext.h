// GStreamer pipelines that packetize streams for RTP.
#pragma once

#include "sdk/demo/device/streamsettings.h"

#include <QByteArray>

namespace site {

/// A pipeline description with the sources "video" and, for a stream with sound, "sound".
[[nodiscard]] QByteArray pipelineText(const sdk::demo::StreamSettings &settings);

/// True if the sound of the settings can be streamed.
[[nodiscard]] bool hasStreamedSound(const sdk::demo::StreamSettings &settings);

/// The caps of the source "sound". `head` is the header of its codec.
[[nodiscard]] QByteArray soundCaps(const sdk::demo::StreamSettings &settings, const QByteArray &head);

/// The caps of the source "video".
[[nodiscard]] QByteArray videoCaps(const sdk::demo::StreamSettings &settings);

} // namespace site
