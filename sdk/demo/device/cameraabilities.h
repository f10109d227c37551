// The capabilities of a simulated device's cameras, and their default settings.
#pragma once

#include "sdk/camerablocks.h"
#include "sdk/demo/device/itemblocks.h"
#include "sdk/demo/scene/scene.h"

namespace sdk::demo {

/// The capabilities of every camera of the device. The groups are those that the scene lists in the device's
/// capabilities ("camera"); without a list those of a typical camera or recorder. With Fault::OddCapabilities
/// some values are invalid.
[[nodiscard]] CameraCapabilities cameraCapabilities(const SceneDevice &device);

/// The default block of a camera item (CameraItem): the bytes of its struct. Returns nullopt if the device
/// does not support the item, if `itemKey` is not the key of a camera item, or if its selector is not a
/// CameraMode. The channel is not checked.
[[nodiscard]] std::optional<QByteArray> usualCameraItem(const SceneDevice &device, const ItemKey &itemKey);

} // namespace sdk::demo
