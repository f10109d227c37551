#pragma once

#include "sheets/cellrange.h"
#include "sheets/lasterror.h"
#include "sheets/sheetengine.h"

#include <pugixml.hpp>

#include <map>
#include <utility>
#include <vector>

namespace sheets {

/// An index of the rows and cells of a sheet's XML document, by number, from 1. The document must outlive
/// this object. Its rows and cells are only added by makeRow() and makeCell(), and not removed. In the
/// document, a row or cell without a number follows the row or cell before it. Cells of rows with the same
/// number count as one row. Of two cells at the same position, the first one is used.
class WorksheetRows : public LastError
{
public:
    /// Finds the rows of the element `data` ("sheetData"). Returns false for a number outside of a sheet; the
    /// object must not be used then.
    bool load(pugi::xml_node data);

    /// From the first to the last row with a value or a formula; both numbers are 0 if there is none. A cell
    /// with a format only does not count.
    [[nodiscard]] UsedRows usedRows() const;

    /// The range from the first to the last row and column with cells, also those with a format only; nullopt
    /// for a sheet without cells.
    [[nodiscard]] std::optional<CellRange> usedRange() const;

    /// The row's element; null when it is missing.
    [[nodiscard]] pugi::xml_node row(int number) const;

    /// The cell's element; null when it is missing.
    [[nodiscard]] pugi::xml_node cell(CellPosition position) const;

    /// The row's element, which is inserted when it is missing.
    pugi::xml_node makeRow(int number);

    /// The cell's element, which is inserted when it is missing: next to the cell before or after it, in the
    /// row element of that cell.
    pugi::xml_node makeCell(CellPosition position);

    /// Calls `visit` for each existing cell of the range, with its position and element.
    template<typename Visit>
    void forEachCell(const CellRange &range, const Visit &visit) const
    {
        const auto end = m_rows.upper_bound(range.last.row);
        for (auto row = m_rows.lower_bound(range.first.row); row != end; ++row) {
            for (const auto &[column, node] : row->second.cells) {
                if (column >= range.first.column && column <= range.last.column)
                    visit(CellPosition{row->first, column}, node);
            }
        }
    }

private:
    struct Row
    {
        pugi::xml_node node;
        std::vector<std::pair<int, pugi::xml_node>> cells; ///< by column, in order
    };

    bool loadRow(int number, pugi::xml_node node);
    [[nodiscard]] const Row *knownRow(int number) const;
    Row &madeRow(int number);

    pugi::xml_node m_data;
    std::map<int, Row> m_rows; ///< by number
};

} // namespace sheets
