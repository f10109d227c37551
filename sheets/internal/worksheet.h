#pragma once

#include "sheets/internal/worksheetrows.h"
#include "sheets/internal/xmlpart.h"

#include <QList>

namespace sheets {

class SharedStrings;
class StyleSheet;

/// One sheet of a workbook from a file, as an XML document that is changed in place. Positions and ranges
/// must be in a sheet. An operation that fails changes nothing.
class Worksheet : public LastError
{
public:
    /// Reads the XML part `bytes`. On failure the object must not be used.
    bool load(const QByteArray &bytes);

    /// From the first to the last row with a value or a formula; both numbers are 0 if there is none.
    [[nodiscard]] UsedRows usedRows() const { return m_rows.usedRows(); }
    /// The content of a cell as text: a number with up to 15 digits, "TRUE" or "FALSE", the stored result of
    /// a formula, an error or an ISO 8601 date as in the file; empty for an empty or missing cell. `strings`
    /// are those of the workbook.
    [[nodiscard]] QString cellText(CellPosition position, const SharedStrings &strings) const;

    /// Writes a text into a cell, which keeps its format except the number format; an empty text empties the
    /// cell. A formula of the cell is replaced. Fails for the cell with the definition of a formula that
    /// other cells share; those other cells can be written. `styles` is the style sheet of the workbook and
    /// gets the format.
    bool setCellText(CellPosition position, const QString &text, StyleSheet &styles);
    /// Merges a range. The content of its first cell is kept, the other contents are removed. Fails for a
    /// range that overlaps a different merged range, and if a removed cell has the definition of a formula
    /// that other cells share. Returns true without a change for a range that is merged already.
    bool mergeCells(const CellRange &range);
    /// Changes the formats of all cells of the range, and adds the missing cells. `styles` gets the formats.
    void changeFormat(const CellRange &range, const FormatChange &change, StyleSheet &styles);
    /// Sets the height of a row, in points.
    void setRowHeight(int row, double points);

    /// Whether the document was changed since load().
    [[nodiscard]] bool isModified() const { return m_isModified; }
    /// Whether a formula was replaced or removed since load(), so that the workbook's list of formulas is
    /// outdated.
    [[nodiscard]] bool hasLostFormulas() const { return m_hasLostFormulas; }
    /// The XML text with all changes.
    [[nodiscard]] QByteArray bytes();

private:
    bool checkFormula(CellPosition position, pugi::xml_node cell);
    void clearCell(pugi::xml_node cell);
    pugi::xml_node makeCell(CellPosition position);
    pugi::xml_node addCell(CellPosition position);
    void setFormat(pugi::xml_node cell, const FormatChange &change, StyleSheet &styles);
    [[nodiscard]] int formatOfEmptyCell(CellPosition position) const;
    pugi::xml_node makeMergeList();

    XmlPart m_part;
    pugi::xml_node m_data;
    pugi::xml_node m_columns; ///< the formats of columns; null when there are none
    WorksheetRows m_rows;
    QList<CellRange> m_merged;
    bool m_isModified = false;
    bool m_hasLostFormulas = false;
    bool m_hasNewCells = false;
};

} // namespace sheets
