// What a simulated device answers to the queries of a session.
#pragma once

#include "sdk/demo/scene.h"
#include "sdk/loginblocks.h"

#include <QByteArray>

namespace sdk::demo {

[[nodiscard]] DeviceAttributes deviceAttributes(const SceneDevice &device);
[[nodiscard]] NetworkServices networkServices(const SceneDevice &device);

/// The configuration text `name`: the device's own state, with the scene's "configuration" of that name laid
/// over it. Nothing when the device does not know the name.
[[nodiscard]] std::optional<QByteArray> configurationText(const SceneDevice &device, const QString &name);

} // namespace sdk::demo
