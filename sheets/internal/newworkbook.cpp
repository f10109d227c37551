#include "sheets/internal/newworkbook.h"

#include "sheets/internal/celltext.h"

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>

#include <clocale>

#include <xlsxwriter.h>

namespace sheets {

namespace {

/// Writes rows through libxlsxwriter, which counts rows and columns from 0.
class RowWriter
{
public:
    RowWriter(lxw_workbook *workbook, lxw_worksheet *sheet) : m_workbook(workbook), m_sheet(sheet) {}

    lxw_error write(int number, const NewWorkbook::Row &row, const QList<CellRange> &merged)
    {
        const lxw_row_t index = lxw_row_t(number - 1);
        lxw_error error = LXW_NO_ERROR;
        for (auto range = merged.begin(); range != merged.end() && error == LXW_NO_ERROR; ++range) {
            if (range->first.row == number)
                error = worksheet_merge_range(m_sheet, index, lxw_col_t(range->first.column - 1),
                                              lxw_row_t(range->last.row - 1),
                                              lxw_col_t(range->last.column - 1), "", format({}));
        }
        if (error == LXW_NO_ERROR && row.height)
            error = worksheet_set_row(m_sheet, index, *row.height, nullptr);
        for (auto cell = row.cells.begin(); cell != row.cells.end() && error == LXW_NO_ERROR; ++cell) {
            const QByteArray text = escapedCellText(cell->text).toUtf8();
            const auto column = lxw_col_t(cell->column - 1);
            lxw_format *look = format(cell->format);
            error = text.isEmpty() ? worksheet_write_blank(m_sheet, index, column, look)
                                   : worksheet_write_string(m_sheet, index, column, text.constData(), look);
        }
        return error;
    }

private:
    /// One format object for each look.
    lxw_format *format(const FormatChange &look)
    {
        lxw_format *&format = m_formats[look];
        if (format)
            return format;
        format = workbook_add_format(m_workbook);
        if (look.isText.value_or(false))
            format_set_num_format(format, "@");
        if (look.wrap.value_or(false))
            format_set_text_wrap(format);
        if (look.bold.value_or(false))
            format_set_bold(format);
        if (look.fontSize)
            format_set_font_size(format, *look.fontSize);
        return format;
    }

    lxw_workbook *const m_workbook;
    lxw_worksheet *const m_sheet;
    std::map<FormatChange, lxw_format *> m_formats;
};

/// Makes this thread write numbers with a decimal point, as the file format wants them, wherever the user
/// lives.
class PointLocale
{
public:
#ifdef Q_OS_UNIX
    PointLocale() : m_point(newlocale(LC_NUMERIC_MASK, "C", nullptr)), m_before(uselocale(m_point)) {}

    ~PointLocale()
    {
        uselocale(m_before);
        if (m_point)
            freelocale(m_point);
    }
#else
    PointLocale() = default; // only where the toolkit sets the C library's locale
#endif
    PointLocale(const PointLocale &) = delete;
    PointLocale &operator=(const PointLocale &) = delete;

private:
#ifdef Q_OS_UNIX
    const locale_t m_point;
    const locale_t m_before;
#endif
};

bool isBefore(const NewWorkbook::Cell &cell, int column)
{
    return cell.column < column;
}

bool isInSeveralRows(const CellRange &range)
{
    return range.first.row != range.last.row;
}

} // namespace

NewWorkbook::Cell &NewWorkbook::Row::cell(int column)
{
    auto cell = std::lower_bound(cells.begin(), cells.end(), column, isBefore);
    if (cell == cells.end() || cell->column != column)
        cell = cells.insert(cell, Cell{column, {}, {}});
    return *cell;
}

bool NewWorkbook::selectSheet(int index)
{
    return index == 1 || fail(QStringLiteral("there is no sheet %1").arg(index));
}

UsedRows NewWorkbook::usedRows() const
{
    UsedRows used;
    for (const auto &[number, row] : m_rows) {
        if (row.cells.empty())
            continue;
        if (used.first == 0)
            used.first = number;
        used.count = number - used.first + 1;
    }
    return used;
}

QString NewWorkbook::cellText(CellPlace place) const
{
    const auto row = m_rows.find(place.row);
    if (row == m_rows.end())
        return {};
    const auto &cells = row->second.cells;
    const auto cell = std::lower_bound(cells.begin(), cells.end(), place.column, isBefore);
    return cell == cells.end() || cell->column != place.column ? QString() : cell->text;
}

bool NewWorkbook::setCellText(CellPlace place, const QString &text)
{
    Cell &cell = m_rows[place.row].cell(place.column);
    cell.text = text;
    cell.format.isText = true;
    return true;
}

bool NewWorkbook::mergeCells(const CellRange &range)
{
    for (const CellRange &other : m_merged) {
        if (range.overlaps(other))
            return range == other || fail(QStringLiteral("%1 overlaps the merged cells %2")
                                              .arg(rangeText(range), rangeText(other)));
    }
    m_merged.append(range);
    m_rows[range.first.row].cell(range.first.column);
    for (auto row = m_rows.find(range.first.row); row != m_rows.end() && row->first <= range.last.row;
         ++row) {
        for (Cell &cell : row->second.cells) {
            const CellPlace place{row->first, cell.column};
            if (place != range.first && CellRange{place, place}.overlaps(range))
                cell.text.clear();
        }
    }
    return true;
}

bool NewWorkbook::changeFormat(const CellRange &range, const FormatChange &change)
{
    for (int row = range.first.row; row <= range.last.row; ++row) {
        Row &cells = m_rows[row];
        for (int column = range.first.column; column <= range.last.column; ++column) {
            FormatChange &format = cells.cell(column).format;
            if (change.wrap)
                format.wrap = change.wrap;
            if (change.bold)
                format.bold = change.bold;
            if (change.fontSize)
                format.fontSize = change.fontSize;
        }
    }
    return true;
}

bool NewWorkbook::setRowHeight(int row, double points)
{
    m_rows[row].height = points;
    return true;
}

bool NewWorkbook::build(QByteArray &file)
{
    // The library writes to a path only.
    const QTemporaryDir folder;
    if (!folder.isValid())
        return fail(folder.errorString());
    QFile written(folder.filePath(QStringLiteral("workbook.xlsx")));
    if (!write(written.fileName(), folder.path()))
        return false;
    if (!written.open(QIODevice::ReadOnly))
        return fail(written.errorString());
    file = written.readAll();
    return written.error() == QFileDevice::NoError || fail(written.errorString());
}

bool NewWorkbook::write(const QString &path, const QString &temporaryFolder)
{
    [[maybe_unused]] const PointLocale locale;
    QByteArray folder = QFile::encodeName(temporaryFolder);
    lxw_workbook_options options = {};
    options.tmpdir = folder.data();
    // Rows that are complete leave the memory at once, which is quick, but cells merged across rows come too
    // early.
    options.constant_memory = std::none_of(m_merged.begin(), m_merged.end(), isInSeveralRows);
    lxw_workbook *workbook = workbook_new_opt(QFile::encodeName(path).constData(), &options);
    if (!workbook)
        return fail(QStringLiteral("cannot begin a workbook"));
    lxw_worksheet *sheet = workbook_add_worksheet(workbook, nullptr);
    lxw_error error = sheet ? LXW_NO_ERROR : LXW_ERROR_MEMORY_MALLOC_FAILED;
    RowWriter writer(workbook, sheet);
    for (auto row = m_rows.begin(); row != m_rows.end() && error == LXW_NO_ERROR; ++row)
        error = writer.write(row->first, row->second, m_merged);
    // Closing frees the workbook and must happen in any case; the first error is the one that counts.
    const lxw_error closing = workbook_close(workbook);
    if (error == LXW_NO_ERROR)
        error = closing;
    return error == LXW_NO_ERROR || fail(QString::fromUtf8(lxw_strerror(error)));
}

} // namespace sheets
