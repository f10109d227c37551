#pragma once

#include "sheets/cellrange.h"
#include "sheets/formatchange.h"
#include "sheets/lasterror.h"

#include <optional>

namespace sheets {

/// The range of used rows: its first row and the number of rows. Both are 0 for an empty sheet, except with
/// the spreadsheet application: there the first row is used.
struct UsedRows
{
    int first = 0;
    int count = 0;
};

/// The back end of QExcel; it has one workbook at a time. The caller checks that positions are in a sheet,
/// that texts are not too long and that there is a workbook.
///
/// On failure an operation returns false or nothing, and errorText() has the reason. Not thread-safe; an
/// object is used on the thread that created it.
class SheetEngine : public LastError
{
public:
    SheetEngine() = default;
    SheetEngine(const SheetEngine &) = delete;
    SheetEngine &operator=(const SheetEngine &) = delete;
    virtual ~SheetEngine() = default;

    /// Creates a workbook with one empty sheet, which is selected. An earlier workbook is closed, even on
    /// failure.
    virtual bool createWorkbook() = 0;

    /// Opens the file, whose path is absolute, and selects its first sheet. An earlier workbook is closed,
    /// even on failure.
    virtual bool open(const QString &path) = 0;

    /// `index` is from 1.
    virtual bool selectSheet(int index) = 0;
    [[nodiscard]] virtual std::optional<UsedRows> usedRows() = 0;
    [[nodiscard]] virtual std::optional<QString> cellText(CellPosition position) = 0;
    virtual bool setCellText(CellPosition position, const QString &text) = 0;
    virtual bool mergeCells(const CellRange &range) = 0;
    virtual bool changeFormat(const CellRange &range, const FormatChange &change) = 0;
    virtual bool setRowHeight(int row, double points) = 0;

    /// Writes the workbook to the file that it was opened from or last saved to.
    virtual bool save() = 0;

    /// Writes the workbook to the file, whose path is absolute. An existing file is replaced.
    virtual bool saveAs(const QString &path) = 0;

    /// Closes the workbook without saving, and releases all other resources of the engine.
    virtual void quit() = 0;
};

} // namespace sheets
