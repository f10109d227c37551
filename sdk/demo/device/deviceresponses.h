// The responses of a simulated device to the queries of a session.
#pragma once

#include "sdk/demo/scene/scene.h"
#include "sdk/loginblocks.h"
#include "sdk/systemblocks.h"

#include <QByteArray>

namespace sdk::demo {

inline constexpr int usualHttpsPort = 443;

/// The HTTPS port of a device's web service, from its configuration "Https"; 0 if HTTPS is disabled.
[[nodiscard]] int httpsPortOf(const SceneDevice &device);

[[nodiscard]] DeviceAttributes deviceAttributes(const SceneDevice &device);
[[nodiscard]] NetworkServices networkServices(const SceneDevice &device);

/// The time of the device's clock at `now` of the site's clock.
[[nodiscard]] TimeRecord deviceTime(const SceneDevice &device, std::int64_t now);

/// The configuration `name` as JSON: the device's own state, overridden by the scene's "configuration" of
/// that name. `channel` is for configurations of channels. nullopt for an unknown name or channel.
[[nodiscard]] std::optional<QByteArray> configurationText(const SceneDevice &device, const QString &name,
                                                          std::int32_t channel = -1);

} // namespace sdk::demo
