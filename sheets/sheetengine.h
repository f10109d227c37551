#pragma once

#include "sheets/cellrange.h"
#include "sheets/formatchange.h"
#include "sheets/lasterror.h"

#include <optional>

namespace sheets {

/// The rows from the first to the last used (non-empty) row of a sheet. For an empty sheet both numbers are
/// 0; with the spreadsheet application both are 1.
struct UsedRows
{
    int first = 0; ///< number of the first used row, from 1
    int count = 0; ///< number of rows
};

/// The interface to the implementations of QExcel: one works on the file format, one drives a spreadsheet
/// application. An engine has one workbook at a time, and one selected sheet in it. The caller (QExcel)
/// checks that positions and ranges are in a sheet, that texts and sizes are within the limits of QExcel, and
/// that there is a workbook, except for createWorkbook(), open() and quit().
///
/// On failure an operation returns false or nullopt, and errorText() has the reason. Not thread-safe; an
/// object is used on the thread that created it, unless its class permits other threads. Operations block.
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

    /// Selects the sheet of the operations below. `index` is from 1. On failure the selection is unchanged.
    virtual bool selectSheet(int index) = 0;
    /// The used rows of the selected sheet.
    [[nodiscard]] virtual std::optional<UsedRows> usedRows() = 0;
    /// The content of a cell as text, see QExcel::cellText(); empty for an empty cell.
    [[nodiscard]] virtual std::optional<QString> cellText(CellPosition position) = 0;
    /// Replaces the content of a cell by a text, with the number format "text". An empty text empties the
    /// cell.
    virtual bool setCellText(CellPosition position, const QString &text) = 0;
    /// Merges the cells of a range, which has more than one cell. The text of its first cell is kept.
    virtual bool mergeCells(const CellRange &range) = 0;
    /// Changes the formats of all cells of the range, also of empty ones.
    virtual bool changeFormat(const CellRange &range, const FormatChange &change) = 0;
    /// Sets the height of a row, 0 to 409 points.
    virtual bool setRowHeight(int row, double points) = 0;

    /// Writes the workbook to the file that it was opened from or last saved to. Fails if there is none.
    virtual bool save() = 0;

    /// Writes the workbook to the file, whose path is absolute. An existing file is replaced. save() uses
    /// this file from then on.
    virtual bool saveAs(const QString &path) = 0;

    /// Closes the workbook, if there is one, without saving, and releases all other resources of the engine.
    /// The engine can be used again.
    virtual void quit() = 0;
};

} // namespace sheets
