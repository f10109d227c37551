// Conversion between configuration texts and records.
//
// The text of a configuration is a JSON object (UTF-8) whose one key is the configuration's name:
//
//   {"Https": {"enabled": true, "port": 443}}
//
// A record is the struct of a configuration, such as HttpsRecord. The names of the configurations and the
// keys are listed in internal/configtable.cpp and internal/picturetables.h. Keys of the inner object without
// a field in the record are ignored. The functions may be called from any thread.
#pragma once

#include <QByteArray>

#include <cstdint>
#include <optional>
#include <string_view>

namespace sdk {

/// The largest size in bytes of a text that unpackConfigText() reads.
inline constexpr std::size_t longestConfigText = std::size_t(512) * 1024;

/// Fills `record`, which has `recordSize` bytes, from the text of the configuration `name`. Its leading size
/// field is set to the size of the configuration's record in bytes, which is also the result. Bytes behind
/// this size and the fields of missing keys are not changed. Strings that are longer than their field are
/// truncated between two characters. Returns nothing, with the record unchanged, when the name is unknown,
/// the record null or too small, or the text is too long, not JSON, of another configuration, or has a value
/// of the wrong type or out of range.
[[nodiscard]] std::optional<std::uint32_t> unpackConfigText(std::string_view name, std::string_view text,
                                                            void *record, std::uint32_t recordSize);

/// The text of a record of the configuration `name`, with every key. The record has `recordSize` bytes; its
/// size field is ignored. Bytes of its strings that are not UTF-8 are replaced by U+FFFD. Returns nothing
/// when the name is unknown, the record null or too small, or a number is out of range.
[[nodiscard]] std::optional<QByteArray> packConfigText(std::string_view name, const void *record,
                                                       std::uint32_t recordSize);

} // namespace sdk
