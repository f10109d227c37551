// Conversion of values for the C functions of entrypoints.h.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace sdk::binding {

/// The time in milliseconds. A negative time gives 0, a time that is too long for the type gives its largest
/// value.
[[nodiscard]] inline std::int32_t cValue(std::chrono::milliseconds time)
{
    return static_cast<std::int32_t>(
        std::clamp<std::int64_t>(time.count(), 0, std::numeric_limits<std::int32_t>::max()));
}

/// The integer of an enumerator, in the type that the enumeration is based on.
template<typename Enumeration>
requires std::is_enum_v<Enumeration>
[[nodiscard]] constexpr auto cValue(Enumeration value)
{
    return static_cast<std::underlying_type_t<Enumeration>>(value);
}

} // namespace sdk::binding
