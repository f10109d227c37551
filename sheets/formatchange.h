#pragma once

#include <optional>

namespace sheets {

/// A change of the format of cells; members without a value are not changed.
struct FormatChange
{
    std::optional<bool> isText; ///< number format "text" ("@"), which keeps "007" from becoming a number
    std::optional<bool> wrap;   ///< long text is wrapped in the cell
    std::optional<bool> bold;
    std::optional<double> fontSize; ///< in points

    auto operator<=>(const FormatChange &) const = default;
};

} // namespace sheets
