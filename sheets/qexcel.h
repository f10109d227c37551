// Reading and writing workbooks of the format ".xlsx".
#pragma once

#include "sheets/sheetengine.h"

#include <QString>

#include <memory>
#include <optional>

/// One workbook, which is created or opened, read, changed and saved. Rows, columns and sheets are numbered
/// from 1. On Windows it uses the spreadsheet application if that is installed, otherwise the file itself.
///
/// On failure, an operation returns false, nullopt or -1. errorText() then has the reason, which is also
/// logged as a warning. A failed createWorkbook() or open() leaves no workbook; any other failed operation
/// changes nothing, except that the spreadsheet application may have changed a format. Every operation except
/// createWorkbook(), open() and quit() fails without a workbook, and for a cell outside of a sheet. Changes
/// are in memory until save() or saveAs(); they are lost when the workbook is closed before.
///
/// Not thread-safe; an object is used on the thread that created it. Operations block: opening and saving
/// 10,000 rows takes about a second. A new workbook takes the least memory if its rows are filled in
/// ascending order before it is saved, without reading a cell.
class QExcel
{
public:
    /// Uses the engine for this host, see above. The object has no workbook yet.
    QExcel();
    /// Uses the given engine, which is not null. For tests.
    explicit QExcel(std::unique_ptr<sheets::SheetEngine> engine);

    /// Closes the workbook without saving.
    ~QExcel();

    QExcel(const QExcel &) = delete;
    QExcel &operator=(const QExcel &) = delete;

    /// Creates a workbook with one empty sheet, which is selected. An earlier workbook is closed, even on
    /// failure. The new one has no file until saveAs().
    bool createWorkbook();

    /// Opens a file and selects its first sheet. Fails for a file that is not a workbook, is encrypted,
    /// damaged or too large. An earlier workbook is closed, even on failure.
    bool open(const QString &path);

    /// Selects the sheet of the following operations, from 1. On failure the selection is unchanged.
    bool selectSheet(int index);

    /// The number of rows of the used range of the selected sheet: from the first to the last non-empty row,
    /// without the empty rows above, so that the last row is firstUsedRow() + usedRowCount() - 1. 0 for an
    /// empty sheet. For the spreadsheet application a cell with a format only is not empty, and an empty
    /// sheet has one row. -1 on failure.
    [[nodiscard]] int usedRowCount();

    /// The number of the first row of the used range; for an empty sheet 0, with the spreadsheet application
    /// 1. -1 on failure.
    [[nodiscard]] int firstUsedRow();

    /// The content of a cell as text: numbers with up to 15 digits, "TRUE" or "FALSE", a date as its number
    /// of days since 1899-12-30, the stored result of a formula, an empty text for an empty cell. Without the
    /// spreadsheet application, a date that the file contains in ISO 8601 form is returned in this form.
    /// nullopt on failure.
    [[nodiscard]] std::optional<QString> cellText(int row, int column);

    /// Replaces the content of a cell by a text, so that "007" is not converted to a number. The cell keeps
    /// its format except the number format; an empty text empties it. At most 32,767 characters; a control
    /// character except line feed and tab counts as seven. Without the spreadsheet application, fails for the
    /// cell with the definition of a formula that other cells share.
    bool setCellText(int row, int column, const QString &text);

    /// Merges a range. The text of its first cell is kept, the other texts are removed. Fails when the range
    /// overlaps a different merged range, and, without the spreadsheet application, if a cell other than the
    /// first has the definition of a formula that other cells share. Returns true without a change for a
    /// single cell, and for a range that is merged already.
    bool mergeCells(const sheets::CellRange &range);

    // The formats of cells; the other formats and the texts are kept. Without the spreadsheet application, a
    // range of more than 100,000 cells fails.

    /// Sets whether long texts are wrapped in their cells.
    bool setWrapText(const sheets::CellRange &range, bool on);
    /// Sets whether the font is bold.
    bool setBold(const sheets::CellRange &range, bool on);

    /// Sets the size of the font. Fails for a size that is not between 1 and 409 points.
    bool setFontSize(const sheets::CellRange &range, double points);

    /// Sets the height of a row. Fails for a height that is not between 0 and 409 points; 0 hides the row.
    bool setRowHeight(int row, double points);

    /// Writes the workbook to the file that it was opened from or last saved as. Fails for a new workbook
    /// before saveAs(). On failure the file is unchanged.
    bool save();

    /// Writes the workbook to a file. An existing file is replaced; its folder must exist. Later save() calls
    /// use this file. On failure the file is unchanged. Fails for an empty path.
    bool saveAs(const QString &path);

    /// Closes the workbook, if there is one, without saving, and ends the spreadsheet application. The object
    /// can be used again.
    void quit();

    /// The reason of the last failure, for the log; also after later successes. Empty when no operation has
    /// failed.
    [[nodiscard]] QString errorText() const { return m_errorText; }

private:
    bool fail(const QString &reason);
    bool ended(bool done);
    bool canUse(const sheets::CellRange &range);
    bool changeFormat(const sheets::CellRange &range, const sheets::FormatChange &change);

    const std::unique_ptr<sheets::SheetEngine> m_engine;
    bool m_hasWorkbook = false;
    QString m_errorText;
};
