// What has been written to the channels of a simulated device.
#pragma once

#include <QByteArray>
#include <QMap>

#include <compare>
#include <cstdint>

namespace sdk::demo {

/// Where an item of a device is kept.
struct ItemPlace
{
    std::uint32_t item = 0;
    std::int32_t channel = 0;
    std::int32_t selector = 0; ///< stream or mode; 0 for items that have neither

    auto operator<=>(const ItemPlace &) const = default;
};

/// Blocks of items as they were written. What is not among them is as the device has it by itself.
using ChannelSettings = QMap<ItemPlace, QByteArray>;

} // namespace sdk::demo
