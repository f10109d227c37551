#pragma once

#include "sheets/sheetengine.h"

#include <QByteArray>

namespace sheets {

/// The two kinds of workbook of the file engine: one that is begun, one that came from a file. Operations as
/// in SheetEngine.
class Workbook : public LastError
{
public:
    Workbook() = default;
    Workbook(const Workbook &) = delete;
    Workbook &operator=(const Workbook &) = delete;
    virtual ~Workbook() = default;

    virtual bool selectSheet(int index) = 0;
    [[nodiscard]] virtual UsedRows usedRows() const = 0;
    [[nodiscard]] virtual QString cellText(CellPlace place) const = 0;
    virtual bool setCellText(CellPlace place, const QString &text) = 0;
    virtual bool mergeCells(const CellRange &range) = 0;
    virtual bool changeFormat(const CellRange &range, const FormatChange &change) = 0;
    virtual bool setRowHeight(int row, double points) = 0;

    /// The bytes of the file that the workbook makes.
    virtual bool build(QByteArray &file) = 0;
};

} // namespace sheets
