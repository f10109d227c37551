// Reading and writing the fixed-size string fields of blocks: the structs that are passed to and from device
// libraries.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace sdk {

/// The string of a field: the bytes before its first zero, or all bytes of a field without a zero. The result
/// refers to `field` and is valid as long as `field`.
template<std::size_t size>
[[nodiscard]] std::string_view blockText(const std::array<char, size> &field)
{
    const std::string_view complete(field.data(), field.size());
    return complete.substr(0, complete.find('\0'));
}

/// Writes the UTF-8 string `text` into `destination`, which has room for `size` bytes, and fills the rest
/// with zeros. The written string always ends with a zero. A string that does not fit is truncated between
/// two characters. With a `size` of 0 nothing is written.
void setBlockText(char *destination, std::size_t size, std::string_view text);

/// The same for a field of a block.
template<std::size_t size>
void setBlockText(std::array<char, size> &field, std::string_view text)
{
    setBlockText(field.data(), field.size(), text);
}

} // namespace sdk
