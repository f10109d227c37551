// The settings that were written to the channels of a simulated device. An item is a group of settings of a
// channel, as a block with a number.
#pragma once

#include <QByteArray>
#include <QMap>

#include <compare>
#include <cstdint>

namespace sdk::demo {

/// The key of an item of a device.
struct ItemKey
{
    std::uint32_t item = 0;    ///< EncodeItem or CameraItem
    std::int32_t channel = 0;  ///< from 0
    std::int32_t selector = 0; ///< the item's word "stream" (from 1) or "mode" (from 0); 0 without either

    auto operator<=>(const ItemKey &) const = default;
};

/// The items that were written, each with the bytes of its block (the struct of the item). Other items have
/// the device's defaults.
using ChannelSettings = QMap<ItemKey, QByteArray>;

} // namespace sdk::demo
