#pragma once

#include "sheets/internal/relationships.h"
#include "sheets/internal/sharedstrings.h"
#include "sheets/internal/stylesheet.h"
#include "sheets/internal/worksheet.h"
#include "sheets/internal/zippackage.h"

#include <QStringList>

#include <memory>

namespace sheets {

/// The file engine's workbook, from the bytes of a file. Only the selected sheet is in memory as a document;
/// the other sheets, with their changes, are in the package. The operations without a comment are those of
/// SheetEngine. They require a selected sheet.
class Workbook : public LastError
{
public:
    /// Reads the bytes of a file and finds its sheets. No sheet is selected. On failure the object must not
    /// be used.
    bool load(const QByteArray &file);

    /// Stores the changes of the selected sheet in the package, and selects another sheet. `index` is from 1;
    /// sheets without cells, such as chart sheets, are not counted. On failure the selection is unchanged.
    bool selectSheet(int index);
    [[nodiscard]] UsedRows usedRows() const;
    [[nodiscard]] QString cellText(CellPosition position) const;
    bool setCellText(CellPosition position, const QString &text);
    bool mergeCells(const CellRange &range);
    bool changeFormat(const CellRange &range, const FormatChange &change);
    bool setRowHeight(int row, double points);

    /// Sets `file` to the bytes of a file with all changes. The workbook can be changed further.
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
