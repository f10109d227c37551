// Reads and changes the items and configurations of a simulated device's channels.
#pragma once

#include "sdk/demo/device/itemblocks.h"
#include "sdk/demo/scene/scene.h"
#include "sdk/encodeblocks.h"
#include "sdk/neterror.h"

namespace sdk::demo {

/// The block of an item, as it was written or with the device's defaults. nullopt if the device does not have
/// the item, or the channel does not exist or is not connected.
[[nodiscard]] std::optional<QByteArray> channelItem(const SceneDevice &device, const ItemKey &itemKey);

/// Writes the block of an item, which has the item's size. Returns NotSupported if the device refuses it.
[[nodiscard]] NetError setChannelItem(SceneDevice &device, const ItemKey &itemKey, const QByteArray &block);

/// Whether `name` is the configuration of a channel.
[[nodiscard]] bool isChannelConfiguration(const QString &name);

/// The JSON of such a configuration, from the channel's items. nullopt if the device does not have it.
[[nodiscard]] std::optional<QByteArray> channelText(const SceneDevice &device, const QString &name,
                                                    std::int32_t channel);

/// Writes such a JSON to the channel's items. Returns NotSupported if the device refuses it, and for
/// "Encode", whose settings are written by setChannelItem() only.
[[nodiscard]] NetError setChannelText(SceneDevice &device, const QString &name, std::int32_t channel,
                                      const QByteArray &text);

/// Fills the blocks of `capabilities` for the settings in `text`. Returns NotSupported if the device has no
/// such channel, or `text` is not the configuration "Encode".
[[nodiscard]] NetError fillEncodeCapabilities(const SceneDevice &device, std::int32_t channel,
                                              const QByteArray &text, EncodeCapabilities &capabilities);

} // namespace sdk::demo
