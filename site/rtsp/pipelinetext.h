// Pipelines that put streams into RTP packets.
#pragma once

#include "sdk/demo/internal/streamsettings.h"

#include <QByteArray>

namespace site {

/// A pipeline description with the sources "pictures" and, where there is sound, "sound".
[[nodiscard]] QByteArray pipelineText(const sdk::demo::StreamSettings &settings);

/// Whether the sound of the settings can be streamed.
[[nodiscard]] bool hasStreamedSound(const sdk::demo::StreamSettings &settings);

/// What comes from the source "sound". `head` is that of its codec.
[[nodiscard]] QByteArray soundCaps(const sdk::demo::StreamSettings &settings, const QByteArray &head);

/// What comes from the source "pictures".
[[nodiscard]] QByteArray pictureCaps(const sdk::demo::StreamSettings &settings);

} // namespace site
