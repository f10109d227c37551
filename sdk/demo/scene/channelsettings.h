// The settings that were written to the channels of a simulated device.
#pragma once

#include <QByteArray>
#include <QMap>

#include <compare>
#include <cstdint>

namespace sdk::demo {

/// The key of an item of a device.
struct ItemKey
{
    std::uint32_t item = 0;
    std::int32_t channel = 0;
    std::int32_t selector = 0; ///< stream or mode; 0 for items without either

    auto operator<=>(const ItemKey &) const = default;
};

/// Blocks of items that were written. Other items have the device's defaults.
using ChannelSettings = QMap<ItemKey, QByteArray>;

} // namespace sdk::demo
