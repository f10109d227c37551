// The keys of configuration texts, and the fields of the records that they fill.
#pragma once

#include <cstddef>
#include <cstdint>

namespace sdk {

/// The types of a field in the record and in JSON.
enum class ConfigFieldKind
{
    Number,   ///< std::int32_t from `minimum` to `maximum`; an integer in JSON
    Flag,     ///< std::int32_t 0 or 1; true or false in JSON; `minimum` is 0, `maximum` 1, also for ByteFlag
    ByteFlag, ///< std::uint8_t 0 or 1; true or false in JSON
    Text,     ///< `size` chars, UTF-8, null-terminated; a string in JSON
    Object,   ///< `inner` fields, whose offsets are relative to this field; an object in JSON
};

/// One key of a configuration and the field of the record that it fills. The tables are constants.
struct ConfigField
{
    const char *key;    ///< in JSON, ASCII
    std::size_t offset; ///< in the record, in bytes; of an inner field in its object
    ConfigFieldKind kind;
    std::int32_t minimum = 0;           ///< of a number or flag
    std::int32_t maximum = 0;           ///< of a number or flag
    std::size_t size = 0;               ///< of a text with its zero, or of a ByteFlag, in bytes; else 0
    const ConfigField *inner = nullptr; ///< the fields of an object; null for other kinds
    std::size_t innerCount = 0;         ///< number of fields at `inner`
};

} // namespace sdk
