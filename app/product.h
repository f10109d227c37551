// Name and version of the product.
#pragma once

#include <QLatin1StringView>

namespace Product {

/// Version number, then a date and time as yyyyMMdd_HHmmss. Constant: the build does not change it.
inline constexpr QLatin1StringView version("V1.2.5.1.20260306_133556");

/// Shown next to the logo.
inline constexpr QLatin1StringView logoName("BRELM Tool");

} // namespace Product
