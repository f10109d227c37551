#pragma once

#include "sheets/cellrange.h"
#include "sheets/formatchange.h"
#include "sheets/lasterror.h"

#include <QByteArray>
#include <QList>
#include <QTemporaryDir>

#include <map>
#include <optional>

struct lxw_format;
struct lxw_workbook;
struct lxw_worksheet;

namespace sheets {

/// A new workbook with one sheet, whose rows are written in ascending order. The memory does not grow with
/// the number of rows: the current row is in memory, and the rows before it are in temporary files of
/// libxlsxwriter. Only build() reads the complete file into memory, which keeps it.
///
/// Order of calls: create(), any number of the four writing operations, build(). The caller checks that rows
/// and cells are in a sheet. An error of a temporary file is reported by build(). The temporary files are
/// removed by build() and by the destructor. Cells cannot be read.
class NewWorkbook : public LastError
{
public:
    NewWorkbook() = default;
    NewWorkbook(const NewWorkbook &) = delete;
    NewWorkbook &operator=(const NewWorkbook &) = delete;
    ~NewWorkbook();

    /// Creates the temporary files, once, before any other operation. Returns false when the system cannot
    /// create them; the object must not be used then.
    bool create();

    /// True when all cells of the range can still be written: they are in one row, which is the current row
    /// (first row 1) or a later one, and build() has not been called. The four operations below are for such
    /// ranges only. They make the range's row the current one, after which earlier rows cannot be written.
    [[nodiscard]] bool accepts(const CellRange &range) const;

    /// Sets the text of a cell, with the number format "text". Also writes the text of a cell that is covered
    /// by a merged range.
    void setCellText(CellPosition position, const QString &text);

    /// Merges a range of more than one cell. The text of its first cell is kept, the other texts are removed.
    /// Returns true without a change for a range that is merged already. Returns false when the range
    /// overlaps a different merged range of its row; nothing is changed then.
    bool mergeCells(const CellRange &range);
    /// Changes the formats of all cells of the range, also of empty ones.
    void changeFormat(const CellRange &range, const FormatChange &change);

    /// Sets the height of a row; `points` is above 0.
    void setRowHeight(int row, double points);

    /// Sets `file` to the bytes of the workbook's file. The first call ends the writing of rows; further
    /// calls give the same result. Returns false when a row or a temporary file could not be written
    /// completely.
    bool build(QByteArray &file);

private:
    struct Cell
    {
        std::optional<QString> text; ///< without a value: the cell has a format only
        FormatChange format;
    };

    void beginRow(int row);
    void writeRow();
    void writeCell(int column, const Cell &cell);
    [[nodiscard]] lxw_format *formatOf(const FormatChange &format);
    void noteError(int error);
    bool finish();

    QTemporaryDir m_folder;
    QByteArray m_path;                  ///< of the file that libxlsxwriter writes
    lxw_workbook *m_workbook = nullptr; ///< null before create() and after finish()
    lxw_worksheet *m_sheet = nullptr;
    std::map<FormatChange, lxw_format *> m_formats;

    int m_row = 1; ///< the current row
    std::map<int, Cell> m_cells;
    QList<CellRange> m_merged; ///< in the current row
    std::optional<double> m_height;

    qint64 m_cellCount = 0; ///< cells that libxlsxwriter has got
    QString m_writeError;   ///< the first error of libxlsxwriter
    QByteArray m_file;      ///< the result of finish()
};

} // namespace sheets
