#pragma once

#include <optional>

namespace sheets {

/// What is to become different in the look of cells; what is not set stays as it is.
struct FormatChange
{
    std::optional<bool> isText;     ///< number format "text" ("@"), which keeps "007" from becoming a number
    std::optional<bool> wrap;       ///< long text goes on in further lines of the cell
    std::optional<bool> bold;       ///< heavy letters
    std::optional<double> fontSize; ///< in points

    auto operator<=>(const FormatChange &) const = default;
};

} // namespace sheets
