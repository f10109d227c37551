// The capabilities of a simulated device's cameras, and their default settings.
#pragma once

#include "sdk/camerablocks.h"
#include "sdk/demo/device/itemblocks.h"
#include "sdk/demo/scene/scene.h"

namespace sdk::demo {

/// From the scene's capabilities ("camera"), otherwise those of a typical camera or recorder.
[[nodiscard]] CameraCapabilities cameraCapabilities(const SceneDevice &device);

/// The default block of a camera item; nullopt if the device does not support the item, or `itemKey` is not
/// the key of a camera item.
[[nodiscard]] std::optional<QByteArray> usualCameraItem(const SceneDevice &device, const ItemKey &itemKey);

} // namespace sdk::demo
