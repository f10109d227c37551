// How the items of channels are laid out, as a table: for the record of requests and for finding their place.
#pragma once

#include "sdk/demo/scene/channelsettings.h"

#include <QJsonObject>

#include <optional>
#include <span>

namespace sdk::demo {

/// An item as its words: each has a name, a reserved one none.
struct ItemBlock
{
    std::uint32_t number;
    std::uint32_t size;
    std::span<const char *const> words; ///< empty for the one item that is a text
    std::size_t selectorWord = 0;       ///< place of the stream or mode, 0 for none
    std::uint32_t floatWords = 0;       ///< bit N: word N is a float
};

/// Null for an unknown number.
[[nodiscard]] const ItemBlock *itemBlock(std::uint32_t number);

/// The named words of `block`, which has at least the size of the item.
[[nodiscard]] QJsonObject decodedItem(const ItemBlock &item, const void *block);

/// The first word of a block of `blockSize` bytes, which is the size that it states; 0 when it has none.
[[nodiscard]] std::uint32_t statedSize(const void *block, std::uint32_t blockSize);

/// Where the item that `block` is about is kept.
[[nodiscard]] ItemPlace placeOf(const ItemBlock &item, std::int32_t channel, const void *block);

} // namespace sdk::demo
