#pragma once

#include "sheets/cellrange.h"
#include "sheets/formatchange.h"
#include "sheets/lasterror.h"

#include <optional>

namespace sheets {

/// Rows that hold something: where they begin and how many there are.
struct UsedRows
{
    int first = 0;
    int count = 0;
};

/// One workbook at a time, as QExcel needs it. Whoever calls has checked that places lie in a sheet, texts
/// are not too long and a workbook is there.
///
/// An operation returns false, or nothing, when it failed, and leaves the reason in `errorText()`.
/// Not thread-safe; an object is used on the thread that made it.
class SheetEngine : public LastError
{
public:
    SheetEngine() = default;
    SheetEngine(const SheetEngine &) = delete;
    SheetEngine &operator=(const SheetEngine &) = delete;
    virtual ~SheetEngine() = default;

    /// Begins a workbook with one empty sheet, which is picked.
    virtual bool createWorkbook() = 0;

    /// Opens the file, whose path is absolute, and picks its first sheet.
    virtual bool open(const QString &path) = 0;

    virtual bool selectSheet(int index) = 0;
    [[nodiscard]] virtual std::optional<UsedRows> usedRows() = 0;
    [[nodiscard]] virtual std::optional<QString> cellText(CellPlace place) = 0;
    virtual bool setCellText(CellPlace place, const QString &text) = 0;
    virtual bool mergeCells(const CellRange &range) = 0;
    virtual bool changeFormat(const CellRange &range, const FormatChange &change) = 0;
    virtual bool setRowHeight(int row, double points) = 0;

    /// Writes the workbook to the file that it came from or was last saved to.
    virtual bool save() = 0;

    /// Writes the workbook to the file, whose path is absolute, in place of what is there.
    virtual bool saveAs(const QString &path) = 0;

    /// Drops the workbook with all that was not saved, and whatever the engine holds beside it.
    virtual void quit() = 0;
};

} // namespace sheets
