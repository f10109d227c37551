// Reading and writing workbooks of the format ".xlsx".
#pragma once

#include "sheets/sheetengine.h"

#include <QString>

#include <memory>
#include <optional>

/// One workbook: made or opened, read, changed and saved. Rows, columns and sheets count from 1. With the
/// spreadsheet application where that is installed, otherwise on the file itself.
///
/// Every operation returns false, or nothing, when it failed, and changes nothing then; `errorText()` says
/// why. An operation that needs a workbook fails when none has been made or opened. What is not saved is
/// lost.
///
/// Not thread-safe; use an object on the thread that made it. An operation works until it is done: opening
/// and saving 10,000 rows takes about a second.
class QExcel
{
public:
    /// Uses the engine that fits this machine.
    QExcel();
    explicit QExcel(std::unique_ptr<sheets::SheetEngine> engine);

    /// Quits.
    ~QExcel();

    QExcel(const QExcel &) = delete;
    QExcel &operator=(const QExcel &) = delete;

    /// Begins a workbook with one empty sheet, which is picked. A workbook that was there is dropped.
    bool createWorkbook();

    /// Opens a file and picks its first sheet. Fails for a file that is none, is encrypted, damaged or too
    /// large. A workbook that was there is dropped, even on failure.
    bool open(const QString &path);

    /// Picks the sheet that everything that follows is about. On failure the one that was picked stays so.
    bool selectSheet(int index);

    /// How many rows the used range has: from the first row that holds something to the last, so it does not
    /// count empty rows above. To the spreadsheet application a cell that has only a look holds something,
    /// and an empty sheet one row. -1 on failure.
    [[nodiscard]] int usedRowCount();

    /// The row that the used range begins with; -1 on failure.
    [[nodiscard]] int firstUsedRow();

    /// What a cell holds, as text: numbers with up to 15 digits, "TRUE" or "FALSE", a date as its day number,
    /// the last result of a formula, an empty text for an empty cell. Nothing on failure.
    [[nodiscard]] std::optional<QString> cellText(int row, int column);

    /// Writes a cell as text, so that "007" stays as it is. At most 32,767 characters.
    bool setCellText(int row, int column, const QString &text);

    /// Makes one cell of a range. The text of its first cell stays, the others lose theirs. Fails when it
    /// overlaps a merged range other than itself.
    bool mergeCells(const sheets::CellRange &range);

    bool setWrapText(const sheets::CellRange &range, bool on);
    bool setBold(const sheets::CellRange &range, bool on);

    /// Between 1 and 409 points.
    bool setFontSize(const sheets::CellRange &range, double points);

    /// Between 0 and 409 points.
    bool setRowHeight(int row, double points);

    /// Writes the workbook to the file that it was opened from or last saved as. The file is replaced as a
    /// whole; on failure it is as it was.
    bool save();

    /// Writes the workbook to a file, which is replaced as a whole if it is there, and on failure is as it
    /// was.
    bool saveAs(const QString &path);

    /// Drops the workbook and ends the spreadsheet application. The object can be used again.
    void quit();

    /// Why the last failed operation failed, in words for the log. Empty when none has failed.
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
