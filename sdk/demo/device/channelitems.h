// The items and configuration texts of a simulated device's channels: reading, changing, answering.
#pragma once

#include "sdk/demo/device/itemblocks.h"
#include "sdk/demo/scene/scene.h"
#include "sdk/encodeblocks.h"
#include "sdk/neterror.h"

namespace sdk::demo {

/// The block of an item, as it was written or as the device has it by itself. Nothing when the device does
/// not know it, or the channel is not there or not connected.
[[nodiscard]] std::optional<QByteArray> channelItem(const SceneDevice &device, const ItemPlace &place);

/// Takes the block of an item, which has the item's size. Returns NotSupported when the device refuses it.
[[nodiscard]] NetError setChannelItem(SceneDevice &device, const ItemPlace &place, const QByteArray &block);

/// Whether `name` is the configuration of a channel.
[[nodiscard]] bool isChannelConfiguration(const QString &name);

/// The text of such a configuration, made of the channel's items. Nothing when the device does not have it.
[[nodiscard]] std::optional<QByteArray> channelText(const SceneDevice &device, const QString &name,
                                                    std::int32_t channel);

/// Takes such a text into the channel's items. Returns NotSupported when the device refuses it.
[[nodiscard]] NetError setChannelText(SceneDevice &device, const QString &name, std::int32_t channel,
                                      const QByteArray &text);

/// Fills the blocks of `capabilities` for the settings that `text` tells. Returns NotSupported when the
/// device has no such channel, or the text is not of the configuration "Encode".
[[nodiscard]] NetError tellEncodeCapabilities(const SceneDevice &device, std::int32_t channel,
                                              const QByteArray &text, EncodeCapabilities &capabilities);

} // namespace sdk::demo
