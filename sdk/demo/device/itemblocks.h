// The layout of channel items as a table, for the log of requests and for their keys.
#pragma once

#include "sdk/demo/scene/channelsettings.h"

#include <QJsonObject>

#include <optional>
#include <span>

namespace sdk::demo {

/// An item as a list of words. Each has a name, except reserved ones.
struct ItemBlock
{
    std::uint32_t number;
    std::uint32_t size;
    std::span<const char *const> words; ///< empty for the one item that is a string
    std::size_t selectorWord = 0;       ///< index of the stream or mode, 0 without one
    std::uint32_t floatWords = 0;       ///< bit N: word N is a float
};

/// Null for an unknown number.
[[nodiscard]] const ItemBlock *itemBlock(std::uint32_t number);

/// The named words of `block`, which is at least as large as the item.
[[nodiscard]] QJsonObject decodedItem(const ItemBlock &item, const void *block);

/// The size field, the first word of a block of `blockSize` bytes; 0 if the block is too small for one.
[[nodiscard]] std::uint32_t statedSize(const void *block, std::uint32_t blockSize);

/// The key of the item in `block`.
[[nodiscard]] ItemKey itemKeyOf(const ItemBlock &item, std::int32_t channel, const void *block);

} // namespace sdk::demo
