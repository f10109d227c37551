// The contents of configuration texts as tables: a new configuration is a new table, without new code.
#pragma once

#include "sdk/configtext/internal/configfield.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace sdk {

struct ConfigTable
{
    std::string_view name;    ///< of the configuration
    std::uint32_t recordSize; ///< the record starts with its size, a std::uint32_t
    std::span<const ConfigField> fields;
};

/// Null for an unknown name.
[[nodiscard]] const ConfigTable *configTable(std::string_view name);

} // namespace sdk
