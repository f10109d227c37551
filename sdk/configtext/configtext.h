// Conversion between configuration texts and records.
//
// The text of a configuration is a JSON object (UTF-8) whose one key is the configuration's name:
//
//   {"Https": {"enabled": true, "port": 443}}
//
// Keys of the inner object without a field in the record are ignored.
#pragma once

#include <QByteArray>

#include <cstdint>
#include <optional>
#include <string_view>

namespace sdk {

/// Longer configuration texts are refused.
inline constexpr std::size_t longestConfigText = std::size_t(512) * 1024;

/// Fills `record` of `recordSize` bytes from the text of the configuration `name`, and its leading size field
/// with the filled size. Strings that are longer than their field are truncated between two characters. The
/// fields of missing keys are not changed. Returns the size of the configuration's record in bytes; nothing,
/// with the record unchanged, when the name is unknown, the record too small, or the text is too long, not
/// JSON, of another configuration, or has a value of the wrong type or out of range.
[[nodiscard]] std::optional<std::uint32_t> unpackConfigText(std::string_view name, std::string_view text,
                                                            void *record, std::uint32_t recordSize);

/// The text of a record of the configuration `name`. Bytes of its strings that are not UTF-8 are replaced.
/// Returns nothing when the name is unknown, the record too small, or a number is out of range.
[[nodiscard]] std::optional<QByteArray> packConfigText(std::string_view name, const void *record,
                                                       std::uint32_t recordSize);

} // namespace sdk
