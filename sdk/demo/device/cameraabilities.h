// What the cameras of a simulated device can do, and their settings before anybody changed them.
#pragma once

#include "sdk/camerablocks.h"
#include "sdk/demo/device/itemblocks.h"
#include "sdk/demo/scene/scene.h"

namespace sdk::demo {

/// From the scene's capabilities ("camera"), else those that cameras, and devices that cameras are connected
/// to, usually have.
[[nodiscard]] CameraCapabilities cameraCapabilities(const SceneDevice &device);

/// The block of a camera item as the device has it by itself; nothing when it cannot do what the item is for,
/// or `place` is no item of a camera.
[[nodiscard]] std::optional<QByteArray> usualCameraItem(const SceneDevice &device, const ItemPlace &place);

} // namespace sdk::demo
