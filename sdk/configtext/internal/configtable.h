// The contents of configuration texts as tables: a new configuration is a new table, without new code.
#pragma once

#include "sdk/configtext/internal/configfield.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace sdk {

/// The keys of one configuration.
struct ConfigTable
{
    std::string_view name;    ///< of the configuration
    std::uint32_t recordSize; ///< in bytes; the record starts with its size, a std::uint32_t without a field
    std::span<const ConfigField> fields;
};

/// The table of the configuration `name`, a constant; null for an unknown name.
[[nodiscard]] const ConfigTable *configTable(std::string_view name);

} // namespace sdk
