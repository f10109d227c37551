// What a simulated device answers to the queries of a session.
#pragma once

#include "sdk/demo/scene/scene.h"
#include "sdk/loginblocks.h"
#include "sdk/systemblocks.h"

#include <QByteArray>

namespace sdk::demo {

inline constexpr int usualHttpsPort = 443;

/// Where the web service of a device listens over HTTPS, by its configuration "Https"; 0 for nowhere.
[[nodiscard]] int httpsPortOf(const SceneDevice &device);

[[nodiscard]] DeviceAttributes deviceAttributes(const SceneDevice &device);
[[nodiscard]] NetworkServices networkServices(const SceneDevice &device);

/// What the device's own clock shows at `now` of the site's clock.
[[nodiscard]] TimeRecord deviceTime(const SceneDevice &device, std::int64_t now);

/// The configuration text `name`: the device's own state, with the scene's "configuration" of that name laid
/// over it. `channel` is for configurations of channels. Nothing when the device does not know the name or
/// has no such channel.
[[nodiscard]] std::optional<QByteArray> configurationText(const SceneDevice &device, const QString &name,
                                                          std::int32_t channel = -1);

} // namespace sdk::demo
