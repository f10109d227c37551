// Reading and writing the fixed-size string fields of blocks.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace sdk {

/// The string of a field: up to the first zero, or the complete field without one.
template<std::size_t size>
[[nodiscard]] std::string_view blockText(const std::array<char, size> &field)
{
    const std::string_view complete(field.data(), field.size());
    return complete.substr(0, complete.find('\0'));
}

/// Writes `text` into `destination`, which has room for `size` bytes, and fills the rest with zeros. A string
/// that does not fit with its terminating zero is truncated between two UTF-8 characters.
void setBlockText(char *destination, std::size_t size, std::string_view text);

template<std::size_t size>
void setBlockText(std::array<char, size> &field, std::string_view text)
{
    setBlockText(field.data(), field.size(), text);
}

} // namespace sdk
