// Reading and writing workbooks of the format ".xlsx".
#pragma once

#include "sheets/sheetengine.h"

#include <QString>

#include <memory>
#include <optional>

/// One workbook, which is created or opened, read, changed and saved. Rows, columns and sheets are numbered
/// from 1. It uses the spreadsheet application if that is installed, otherwise the file itself.
///
/// On failure, an operation returns false, nothing or -1 and changes nothing, except createWorkbook() and
/// open(), after which there is no workbook; errorText() has the reason. An operation that needs a workbook
/// fails when there is none. Unsaved changes are lost when the workbook is closed.
///
/// Not thread-safe; use an object on the thread that created it. Operations block: opening and saving 10,000
/// rows takes about a second. A new workbook that is filled row by row, in ascending order, and then saved
/// takes the least memory.
class QExcel
{
public:
    /// Uses the engine that fits this machine.
    QExcel();
    explicit QExcel(std::unique_ptr<sheets::SheetEngine> engine);

    /// Calls quit().
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

    /// The number of rows of the used range: from the first to the last non-empty row, without the empty rows
    /// above. 0 for an empty sheet. For the spreadsheet application a cell with a format only is not empty,
    /// and an empty sheet has one row. -1 on failure.
    [[nodiscard]] int usedRowCount();

    /// The first row of the used range; for an empty sheet 0, with the spreadsheet application 1. -1 on
    /// failure.
    [[nodiscard]] int firstUsedRow();

    /// The content of a cell as text: numbers with up to 15 digits, "TRUE" or "FALSE", a date as its day
    /// number, the last result of a formula, an empty text for an empty cell. Nothing on failure.
    [[nodiscard]] std::optional<QString> cellText(int row, int column);

    /// Writes a cell as text, so that "007" is not converted to a number. At most 32,767 characters; a
    /// control character counts as seven. Line feeds and tabs are not counted as control characters.
    bool setCellText(int row, int column, const QString &text);

    /// Merges a range. The text of its first cell is kept, the other texts are removed. Fails when it
    /// overlaps another merged range. A single cell is not changed; the result is true.
    bool mergeCells(const sheets::CellRange &range);

    // The formats of cells. Without the spreadsheet application, a range of more than 100,000 cells fails.
    bool setWrapText(const sheets::CellRange &range, bool on);
    bool setBold(const sheets::CellRange &range, bool on);

    /// Fails for a size that is not between 1 and 409 points.
    bool setFontSize(const sheets::CellRange &range, double points);

    /// Fails for a height that is not between 0 and 409 points.
    bool setRowHeight(int row, double points);

    /// Writes the workbook to the file that it was opened from or last saved as. A new workbook needs
    /// saveAs() first. On failure the file is unchanged.
    bool save();

    /// Writes the workbook to a file, which is replaced if it exists. On failure the file is unchanged.
    bool saveAs(const QString &path);

    /// Closes the workbook without saving and ends the spreadsheet application. The object can be used again.
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
