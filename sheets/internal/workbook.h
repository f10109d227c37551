#pragma once

#include "sheets/internal/relationships.h"
#include "sheets/internal/sharedstrings.h"
#include "sheets/internal/stylesheet.h"
#include "sheets/internal/worksheet.h"
#include "sheets/internal/zippackage.h"

#include <QStringList>

#include <memory>

namespace sheets {

/// The workbook of FileSheetEngine that is changed, from the bytes of a file. Only the selected sheet is in
/// memory as a document; the other sheets, with their changes, are in the package. Operations that return
/// false have failed, with the reason in errorText(). Rows and columns count from 1; the caller checks that
/// they are in a sheet.
class Workbook : public LastError
{
public:
    /// Reads the bytes of a file and finds its sheets. No sheet is selected. Called once, first. On failure
    /// the object must not be used.
    bool load(const QByteArray &file);

    /// Stores the changes of the selected sheet in the package, and selects another sheet. `index` is from 1;
    /// sheets that cannot have cells, such as chart sheets, are not counted. On failure the selection is
    /// unchanged.
    bool selectSheet(int index);

    // The operations below, up to setRowHeight(), require a selected sheet. They are those of Worksheet on
    // it.

    /// From the first to the last row with a value or a formula; both numbers are 0 for an empty sheet.
    [[nodiscard]] UsedRows usedRows() const;
    /// The content of a cell as text; empty for an empty cell.
    [[nodiscard]] QString cellText(CellPosition position) const;
    /// Writes a text into a cell, with the number format "text". Fails for the cell with the definition of a
    /// formula that other cells share, and if the style sheet of the workbook is damaged.
    bool setCellText(CellPosition position, const QString &text);
    /// Merges a range. Fails for a range that overlaps a different merged range, and if a cell whose content
    /// would be removed has the definition of a formula that other cells share.
    bool mergeCells(const CellRange &range);
    /// Changes the formats of all cells of the range. Fails if the style sheet of the workbook is damaged.
    bool changeFormat(const CellRange &range, const FormatChange &change);
    /// Sets the height of a row, in points. Returns true.
    bool setRowHeight(int row, double points);

    /// Sets `file` to the bytes of a file with all changes. The workbook can be changed further, and built
    /// again.
    bool build(QByteArray &file);

private:
    bool findSheets(pugi::xml_node workbook);
    bool loadStrings();
    bool needStyles();
    bool storeSheet();

    ZipPackage m_package;
    Relationships m_relationships; ///< of the workbook's part
    QByteArray m_nameSpace;        ///< of the workbook's dialect
    QStringList m_sheetParts;
    SharedStrings m_strings;
    std::unique_ptr<StyleSheet> m_styles; ///< null until it is needed
    QString m_stylesPart;
    std::unique_ptr<Worksheet> m_sheet; ///< the selected sheet
    QString m_sheetPart;
};

} // namespace sheets
