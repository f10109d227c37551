// Where a cell is in a sheet, by number and as text such as "C7".
#pragma once

#include <QString>

#include <optional>

namespace sheets {

/// The size of a sheet in the file format. Rows and columns count from 1.
inline constexpr int maximumRows = 1'048'576;
inline constexpr int maximumColumns = 16'384;

/// The place of one cell.
struct CellPlace
{
    int row = 0;
    int column = 0;

    bool operator==(const CellPlace &) const = default;

    [[nodiscard]] bool isInSheet() const
    {
        return row >= 1 && row <= maximumRows && column >= 1 && column <= maximumColumns;
    }
};

/// A rectangle of cells, both corners included.
struct CellRange
{
    CellPlace first;
    CellPlace last;

    bool operator==(const CellRange &) const = default;

    [[nodiscard]] static CellRange cell(int row, int column) { return {{row, column}, {row, column}}; }

    [[nodiscard]] bool isInSheet() const
    {
        return first.isInSheet() && last.isInSheet() && first.row <= last.row && first.column <= last.column;
    }

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

/// The place as text: column letters, then the row's number.
[[nodiscard]] QString placeText(CellPlace place);

/// The range as text: both corners with a colon between, or one place when it is a single cell.
[[nodiscard]] QString rangeText(const CellRange &range);

/// The place that `text` names, with or without "$". Nothing when it names none or one outside of a sheet.
[[nodiscard]] std::optional<CellPlace> cellPlace(QStringView text);

/// The range that `text` names: two places with a colon between, or one. Nothing when it names none.
[[nodiscard]] std::optional<CellRange> cellRange(QStringView text);

} // namespace sheets
