#pragma once

#include <optional>

namespace sheets {

/// A change of the format of cells. Members without a value leave that property of the format as it is.
struct FormatChange
{
    /// True for the number format "text" ("@"), which keeps "007" from becoming a number; false for the
    /// default number format.
    std::optional<bool> isText;
    std::optional<bool> wrap; ///< long text is wrapped in the cell
    std::optional<bool> bold;
    std::optional<double> fontSize; ///< in points

    auto operator<=>(const FormatChange &) const = default;
};

} // namespace sheets
