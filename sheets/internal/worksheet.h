#pragma once

#include "sheets/internal/worksheetrows.h"
#include "sheets/internal/xmlpart.h"

#include <QList>

namespace sheets {

class SharedStrings;
class StyleSheet;

/// One sheet of a workbook from a file, changed in place.
class Worksheet : public LastError
{
public:
    bool load(const QByteArray &bytes);

    [[nodiscard]] UsedRows usedRows() const { return m_rows.usedRows(); }
    [[nodiscard]] QString cellText(CellPosition position, const SharedStrings &strings) const;

    /// Writes a text into a cell, which keeps its format except the number format. Fails for a cell whose
    /// formula is shared with other cells.
    bool setCellText(CellPosition position, const QString &text, StyleSheet &styles);
    /// Fails for a range that overlaps a different merged range, and for a formula outside of its first cell
    /// that is shared with other cells.
    bool mergeCells(const CellRange &range);
    void changeFormat(const CellRange &range, const FormatChange &change, StyleSheet &styles);
    void setRowHeight(int row, double points);

    [[nodiscard]] bool isModified() const { return m_isModified; }
    /// Whether a formula was replaced or removed.
    [[nodiscard]] bool hasLostFormulas() const { return m_hasLostFormulas; }
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
