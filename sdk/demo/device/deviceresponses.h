// The responses of a simulated device to the queries of a session.
#pragma once

#include "sdk/demo/scene/scene.h"
#include "sdk/loginblocks.h"
#include "sdk/systemblocks.h"

#include <QByteArray>

namespace sdk::demo {

inline constexpr int usualHttpsPort = 443;

/// The HTTPS port of a device's web service, from its configuration "Https"; usualHttpsPort if that has no
/// port; 0 if HTTPS is disabled, the default.
[[nodiscard]] int httpsPortOf(const SceneDevice &device);

/// With the device's faults applied to its strings.
[[nodiscard]] DeviceAttributes deviceAttributes(const SceneDevice &device);

/// The web port is 0 for a device without a web service, the RTSP port is always 554.
[[nodiscard]] NetworkServices networkServices(const SceneDevice &device);

/// The time that the device's clock shows at `now` (ms since 1970) of the site's clock: UTC, plus the offset
/// of the device's clock (SceneMaintenance::clockAhead).
[[nodiscard]] TimeRecord deviceTime(const SceneDevice &device, std::int64_t now);

/// The text of the configuration `name`: a JSON object of the device's own state, in which the keys of
/// SceneDevice::configuration replace those of the same names. By Fault::OddConfiguration the text is not
/// JSON, by Fault::OverLongConfiguration it is longer than longestConfigText. `channel` (from 0) is used for
/// the configurations of channels only ("Encode", "VideoColor", "Lighting_V2"). Returns nullopt for an
/// unknown name or channel.
[[nodiscard]] std::optional<QByteArray> configurationText(const SceneDevice &device, const QString &name,
                                                          std::int32_t channel = -1);

} // namespace sdk::demo
