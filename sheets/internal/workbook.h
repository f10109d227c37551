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
/// changes of other sheets are in the package. Operations as in SheetEngine, after selectSheet().
class Workbook : public LastError
{
public:
    /// Reads the bytes of a file and finds its sheets. No sheet is selected.
    bool load(const QByteArray &file);

    bool selectSheet(int index);
    [[nodiscard]] UsedRows usedRows() const;
    [[nodiscard]] QString cellText(CellPosition position) const;
    bool setCellText(CellPosition position, const QString &text);
    bool mergeCells(const CellRange &range);
    bool changeFormat(const CellRange &range, const FormatChange &change);
    bool setRowHeight(int row, double points);

    /// Sets `file` to the bytes of the workbook's file.
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
