// Reads and changes the items and configurations of a simulated device's channels. An item is a group of
// settings as a block with a number (EncodeItem, CameraItem); a configuration contains the values of several
// items as a JSON text.
#pragma once

#include "sdk/demo/device/itemblocks.h"
#include "sdk/demo/scene/scene.h"
#include "sdk/encodeblocks.h"
#include "sdk/neterror.h"

namespace sdk::demo {

// Channels are counted from 0. A device without a list of channels has one connected channel. The caller has
// access to `device`: none of these functions locks the site. A device that refuses stays unchanged.

/// The block of an item, as it was written or with the device's defaults. Returns nullopt if the device does
/// not have the item, or if the channel does not exist or is not connected.
[[nodiscard]] std::optional<QByteArray> channelItem(const SceneDevice &device, const ItemKey &itemKey);

/// Writes the block of an item, which has the item's size. Returns None, or NotSupported for an item that
/// channelItem() does not have and for a block that the device refuses: an EncodeItem outside its
/// capabilities, or any item by Fault::RefusesItem. The values of a CameraItem are not checked.
[[nodiscard]] NetError setChannelItem(SceneDevice &device, const ItemKey &itemKey, const QByteArray &block);

/// Whether `name` is the configuration of a channel: "Encode", "VideoColor" or "Lighting_V2".
[[nodiscard]] bool isChannelConfiguration(const QString &name);

/// The text (JSON) of the channel's configuration `name`, from the channel's items. Returns nullopt if the
/// device does not have it.
[[nodiscard]] std::optional<QByteArray> channelText(const SceneDevice &device, const QString &name,
                                                    std::int32_t channel);

/// Writes the text (JSON) of the channel's configuration `name` to the channel's items; keys that the text
/// lacks keep their values. Returns None, or NotSupported for a text that channelText() does not have, for an
/// invalid text, by Fault::RefusesConfiguration, and for "Encode", whose settings are written by
/// setChannelItem() only.
[[nodiscard]] NetError setChannelText(SceneDevice &device, const QString &name, std::int32_t channel,
                                      const QByteArray &text);

/// Fills the blocks of `capabilities` by StreamKind, for the settings in `text`, a text of the configuration
/// "Encode": the maximum bit rates depend on its frame sizes. Returns None, or NotSupported, with
/// `capabilities` unchanged, if the device has no such channel or `text` is not of that configuration.
[[nodiscard]] NetError fillEncodeCapabilities(const SceneDevice &device, std::int32_t channel,
                                              const QByteArray &text, EncodeCapabilities &capabilities);

} // namespace sdk::demo
