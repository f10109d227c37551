// Positions of cells in a sheet, as numbers and as references such as "C7".
#pragma once

#include <QString>

#include <optional>

namespace sheets {

/// The size of a sheet in the file format. Rows and columns count from 1.
inline constexpr int maximumRows = 1'048'576;
inline constexpr int maximumColumns = 16'384;

/// The position of one cell.
struct CellPosition
{
    int row = 0;
    int column = 0;

    bool operator==(const CellPosition &) const = default;

    [[nodiscard]] bool isInSheet() const
    {
        return row >= 1 && row <= maximumRows && column >= 1 && column <= maximumColumns;
    }
};

/// A rectangle of cells, both corners included.
struct CellRange
{
    CellPosition first;
    CellPosition last;

    bool operator==(const CellRange &) const = default;

    /// The range of a single cell.
    [[nodiscard]] static CellRange cell(int row, int column) { return {{row, column}, {row, column}}; }

    /// True if both corners are in a sheet, and `last` is neither above nor left of `first`. The functions
    /// below require that.
    [[nodiscard]] bool isInSheet() const
    {
        return first.isInSheet() && last.isInSheet() && first.row <= last.row && first.column <= last.column;
    }

    /// Whether the ranges have a cell in common.
    [[nodiscard]] bool overlaps(const CellRange &other) const
    {
        return first.row <= other.last.row && other.first.row <= last.row &&
               first.column <= other.last.column && other.first.column <= last.column;
    }

    [[nodiscard]] qint64 cellCount() const
    {
        return qint64(last.row - first.row + 1) * (last.column - first.column + 1);
    }
};

/// The position as a reference: column letters, then the row's number, such as "C7" for row 7 and column 3.
/// Row and column are at least 1.
[[nodiscard]] QString positionText(CellPosition position);

/// The range as a reference: both corners with a colon between ("C7:D9"), or one position for a single cell.
[[nodiscard]] QString rangeText(const CellRange &range);

/// The position of the reference `text`, with or without "$", in upper or lower case. nullopt for an invalid
/// reference and for one outside of a sheet.
[[nodiscard]] std::optional<CellPosition> cellPosition(QStringView text);

/// The range of the reference `text`: two opposite corners, in any order, with a colon between, or one
/// position. In the result, `first` is the top left corner. nullopt for an invalid reference and for one
/// outside of a sheet.
[[nodiscard]] std::optional<CellRange> cellRange(QStringView text);

} // namespace sheets
