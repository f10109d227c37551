// Reading and writing the fixed-size text fields of blocks.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace sdk {

/// The text of a field: up to its first zero, or the whole field when it holds none.
template<std::size_t size>
[[nodiscard]] std::string_view blockText(const std::array<char, size> &field)
{
    const std::string_view whole(field.data(), field.size());
    return whole.substr(0, whole.find('\0'));
}

/// Writes `text` into `destination`, which has room for `size` bytes, and fills the rest with zeros. A text
/// that does not fit with its terminating zero is cut, never in the middle of a UTF-8 letter.
void setBlockText(char *destination, std::size_t size, std::string_view text);

template<std::size_t size>
void setBlockText(std::array<char, size> &field, std::string_view text)
{
    setBlockText(field.data(), field.size(), text);
}

} // namespace sdk
