#include "sheets/internal/newworkbook.h"

#include "sheets/internal/celltext.h"

#include <QFile>

#include <array>

#include <xlsxwriter.h>
#include <zip.h>

namespace sheets {

namespace {

constexpr int textFormatIndex = 49; // "@" among the formats that every workbook has

/// Reads the text of a sheet in chunks, for a check of its completeness.
class SheetCheck
{
public:
    void read(QByteArrayView chunk)
    {
        for (const char character : chunk) {
            if (character == start.at(m_matched)) {
                if (++m_matched == start.size())
                    ++m_cellCount;
            } else {
                m_matched = character == start.front() ? 1 : 0;
            }
            m_matched %= start.size();
        }
        m_end = (m_end + chunk.toByteArray()).right(endTag.size());
    }

    [[nodiscard]] bool isComplete(qint64 cellCount) const
    {
        return m_cellCount == cellCount && m_end == endTag;
    }

private:
    static constexpr std::string_view start = "<c "; // no text of a cell contains "<"
    static constexpr QByteArrayView endTag = "</worksheet>";

    std::size_t m_matched = 0; ///< characters of `start` that the text ends with
    qint64 m_cellCount = 0;
    QByteArray m_end;
};

/// True when the workbook's sheet has so many cells and its end tag. libxlsxwriter ignores errors of its
/// temporary files, so that a full disk would truncate the sheet without an error.
bool hasCompleteSheet(const QByteArray &path, qint64 cellCount)
{
    zip_t *archive = zip_open(path.constData(), ZIP_RDONLY, nullptr);
    if (!archive)
        return false;
    SheetCheck check;
    zip_int64_t length = -1;
    if (zip_file_t *part = zip_fopen(archive, "xl/worksheets/sheet1.xml", 0)) {
        std::array<char, std::size_t{32} * 1024> chunk;
        while ((length = zip_fread(part, chunk.data(), chunk.size())) > 0)
            check.read(QByteArrayView(chunk.data(), length));
        zip_fclose(part);
    }
    zip_discard(archive);
    return length == 0 && check.isComplete(cellCount);
}

lxw_row_t libraryRow(int row)
{
    return static_cast<lxw_row_t>(row - 1);
}

lxw_col_t libraryColumn(int column)
{
    return static_cast<lxw_col_t>(column - 1);
}

} // namespace

NewWorkbook::~NewWorkbook()
{
    if (m_workbook)
        lxw_workbook_free(m_workbook);
}

bool NewWorkbook::create()
{
    if (!m_folder.isValid())
        return fail(m_folder.errorString());
    m_path = QFile::encodeName(m_folder.filePath(QStringLiteral("workbook.xlsx")));
    QByteArray folder = QFile::encodeName(m_folder.path());
    lxw_workbook_options options = {};
    options.constant_memory = LXW_TRUE;
    options.tmpdir = folder.data();
    m_workbook = workbook_new_opt(m_path.constData(), &options);
    m_sheet = m_workbook ? workbook_add_worksheet(m_workbook, nullptr) : nullptr;
    return m_sheet || fail(QString::fromUtf8(lxw_strerror(LXW_ERROR_CREATING_TMPFILE)));
}

bool NewWorkbook::accepts(const CellRange &range) const
{
    return m_workbook && range.first.row == range.last.row && range.first.row >= m_row;
}

void NewWorkbook::setCellText(CellPosition position, const QString &text)
{
    beginRow(position.row);
    Cell &cell = m_cells[position.column];
    cell.text = text;
    cell.format.isText = true;
}

bool NewWorkbook::mergeCells(const CellRange &range)
{
    if (range.first.row == m_row) {
        for (const CellRange &other : std::as_const(m_merged)) {
            if (range.overlaps(other))
                return range == other || fail(QStringLiteral("%1 overlaps the merged cells %2")
                                                  .arg(rangeText(range), rangeText(other)));
        }
    }
    beginRow(range.first.row);
    const auto end = m_cells.upper_bound(range.last.column);
    for (auto cell = m_cells.upper_bound(range.first.column); cell != end; ++cell)
        cell->second.text.reset();
    m_merged.append(range);
    return true;
}

void NewWorkbook::changeFormat(const CellRange &range, const FormatChange &change)
{
    beginRow(range.first.row);
    for (int column = range.first.column; column <= range.last.column; ++column) {
        FormatChange &format = m_cells[column].format;
        format.isText = change.isText ? change.isText : format.isText;
        format.wrap = change.wrap ? change.wrap : format.wrap;
        format.bold = change.bold ? change.bold : format.bold;
        format.fontSize = change.fontSize ? change.fontSize : format.fontSize;
    }
}

void NewWorkbook::setRowHeight(int row, double points)
{
    beginRow(row);
    m_height = points;
}

bool NewWorkbook::build(QByteArray &file)
{
    if (m_workbook && !finish())
        return false;
    file = m_file;
    return !m_file.isEmpty() || fail(m_writeError);
}

/// Makes `row` the current one: the row before it is written to the temporary file.
void NewWorkbook::beginRow(int row)
{
    if (row == m_row)
        return;
    writeRow();
    m_row = row;
}

void NewWorkbook::writeRow()
{
    if (m_height)
        noteError(worksheet_set_row(m_sheet, libraryRow(m_row), *m_height, nullptr));
    for (const CellRange &range : std::as_const(m_merged))
        noteError(worksheet_merge_range(m_sheet, libraryRow(m_row), libraryColumn(range.first.column),
                                        libraryRow(m_row), libraryColumn(range.last.column), "", nullptr));
    for (const auto &[column, cell] : m_cells)
        writeCell(column, cell);
    m_height.reset();
    m_merged.clear();
    m_cells.clear();
}

void NewWorkbook::writeCell(int column, const Cell &cell)
{
    lxw_format *format = formatOf(cell.format);
    if (!format)
        return; // an empty cell with the default format
    ++m_cellCount;
    const QByteArray text = escapedCellText(cell.text.value_or(QString())).toUtf8();
    noteError(
        worksheet_write_string(m_sheet, libraryRow(m_row), libraryColumn(column), text.constData(), format));
}

/// Null for the default format.
lxw_format *NewWorkbook::formatOf(const FormatChange &format)
{
    const FormatChange key = {.isText = format.isText.value_or(false),
                              .wrap = format.wrap.value_or(false),
                              .bold = format.bold.value_or(false),
                              .fontSize = format.fontSize};
    if (!*key.isText && !*key.wrap && !*key.bold && !key.fontSize)
        return nullptr;
    const auto known = m_formats.find(key);
    if (known != m_formats.end())
        return known->second;
    lxw_format *made = workbook_add_format(m_workbook);
    if (*key.isText)
        format_set_num_format_index(made, textFormatIndex);
    if (*key.wrap)
        format_set_text_wrap(made);
    if (*key.bold)
        format_set_bold(made);
    if (key.fontSize)
        format_set_font_size(made, *key.fontSize);
    m_formats.emplace(key, made);
    return made;
}

/// Keeps the first error, as lxw_error, for build().
void NewWorkbook::noteError(int error)
{
    if (error != LXW_NO_ERROR && m_writeError.isEmpty())
        m_writeError = QString::fromUtf8(lxw_strerror(static_cast<lxw_error>(error)));
}

/// Writes the last row and the file, and reads the file's bytes.
bool NewWorkbook::finish()
{
    writeRow();
    noteError(workbook_close(m_workbook)); // frees the workbook in any case
    m_workbook = nullptr;
    m_sheet = nullptr;
    m_formats.clear();
    if (m_writeError.isEmpty() && !hasCompleteSheet(m_path, m_cellCount))
        m_writeError = QStringLiteral("the temporary files could not be written completely");
    if (m_writeError.isEmpty()) {
        QFile file(QFile::decodeName(m_path));
        if (file.open(QIODevice::ReadOnly))
            m_file = file.readAll();
        if (m_file.isEmpty())
            m_writeError = file.errorString();
    }
    m_folder.remove();
    return m_writeError.isEmpty() || fail(m_writeError);
}

} // namespace sheets
