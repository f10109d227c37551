#pragma once

#include "sheets/cellrange.h"
#include "sheets/lasterror.h"
#include "sheets/sheetengine.h"

#include <pugixml.hpp>

#include <map>
#include <utility>
#include <vector>

namespace sheets {

/// The rows and cells of a sheet's document, found by number. A row or cell may be written without its
/// number, and then follows the one before it.
class WorksheetRows : public LastError
{
public:
    /// Finds the rows of `data`, the element that holds them. Fails for a number that no sheet has.
    bool load(pugi::xml_node data);

    /// From the first row with a value or a formula in a cell to the last. A cell that has only a look does
    /// not count.
    [[nodiscard]] UsedRows usedRows() const;

    /// The cells that are there, from the first row and column to the last; nothing in an empty sheet.
    [[nodiscard]] std::optional<CellRange> usedRange() const;

    /// The row's element; null when it is not there.
    [[nodiscard]] pugi::xml_node row(int number) const;

    /// The cell's element; null when it is not there.
    [[nodiscard]] pugi::xml_node cell(CellPlace place) const;

    /// The row's element, which is added at its place when it is missing.
    pugi::xml_node makeRow(int number);

    /// The cell's element, which is added at its place when it is missing.
    pugi::xml_node makeCell(CellPlace place);

    /// Calls `visit` for each cell of the range that is there, with its place and element.
    template<typename Visit>
    void forEachCell(const CellRange &range, const Visit &visit) const
    {
        const auto end = m_rows.upper_bound(range.last.row);
        for (auto row = m_rows.lower_bound(range.first.row); row != end; ++row) {
            for (const auto &[column, node] : row->second.cells) {
                if (column >= range.first.column && column <= range.last.column)
                    visit(CellPlace{row->first, column}, node);
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
