// The layout of the items of channels (EncodeItem, CameraItem), for the log of requests and for their keys.
#pragma once

#include "sdk/demo/scene/channelsettings.h"

#include <QJsonObject>

#include <optional>
#include <span>

namespace sdk::demo {

/// The block of an item as a list of words of 32 bits. Entries of a constant table.
struct ItemBlock
{
    std::uint32_t number; ///< of the item
    std::uint32_t size;   ///< of the block, in bytes
    std::span<const char *const>
        words; ///< names, of word 0 "size"; null if reserved; none for CameraItem::ChannelName
    std::size_t selectorWord = 0; ///< index of the stream or mode, 0 without one
    std::uint32_t floatWords = 0; ///< bit N: word N is a float
};

/// The layout of the item, a constant; null for an unknown number.
[[nodiscard]] const ItemBlock *itemBlock(std::uint32_t number);

/// The values of the named words of `block`, by name: numbers; for CameraItem::ChannelName its size and its
/// name as a string. `block` has at least ItemBlock::size bytes.
[[nodiscard]] QJsonObject decodedItem(const ItemBlock &item, const void *block);

/// The size field, the first word of a block of `blockSize` bytes; 0 if `block` is null or too small for one.
[[nodiscard]] std::uint32_t statedSize(const void *block, std::uint32_t blockSize);

/// The key of the item in `block`, which has at least ItemBlock::size bytes: with its stream or mode as the
/// selector, which is not checked. `channel` is from 0.
[[nodiscard]] ItemKey itemKeyOf(const ItemBlock &item, std::int32_t channel, const void *block);

} // namespace sdk::demo
