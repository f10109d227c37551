#include "sheets/qexcel.h"

#include "sheets/internal/celltext.h"
#include "sheets/logging.h"
#include "sheets/sheetenginefactory.h"

#include <QFileInfo>

using sheets::CellRange;

namespace {

constexpr double maximumPoints = 409;

} // namespace

QExcel::QExcel() : QExcel(sheets::makeSheetEngine()) {}

QExcel::QExcel(std::unique_ptr<sheets::SheetEngine> engine) : m_engine(std::move(engine)) {}

QExcel::~QExcel()
{
    quit();
}

bool QExcel::createWorkbook()
{
    m_hasWorkbook = m_engine->createWorkbook();
    return ended(m_hasWorkbook);
}

bool QExcel::open(const QString &path)
{
    if (!QFileInfo(path).isFile()) {
        quit();
        return fail(QStringLiteral("there is no file %1").arg(path));
    }
    m_hasWorkbook = m_engine->open(QFileInfo(path).absoluteFilePath());
    return ended(m_hasWorkbook);
}

bool QExcel::selectSheet(int index)
{
    if (!m_hasWorkbook)
        return fail(QStringLiteral("there is no workbook"));
    return ended(m_engine->selectSheet(index));
}

int QExcel::usedRowCount()
{
    if (!m_hasWorkbook) {
        fail(QStringLiteral("there is no workbook"));
        return -1;
    }
    const auto used = m_engine->usedRows();
    ended(used.has_value());
    return used ? used->count : -1;
}

int QExcel::firstUsedRow()
{
    if (!m_hasWorkbook) {
        fail(QStringLiteral("there is no workbook"));
        return -1;
    }
    const auto used = m_engine->usedRows();
    ended(used.has_value());
    return used ? used->first : -1;
}

std::optional<QString> QExcel::cellText(int row, int column)
{
    if (!canUse(CellRange::cell(row, column)))
        return std::nullopt;
    auto text = m_engine->cellText({row, column});
    ended(text.has_value());
    return text;
}

bool QExcel::setCellText(int row, int column, const QString &text)
{
    if (!canUse(CellRange::cell(row, column)))
        return false;
    if (!sheets::fitsCell(text))
        return fail(QStringLiteral("a text of %1 characters is too long for a cell").arg(text.size()));
    return ended(m_engine->setCellText({row, column}, text));
}

bool QExcel::mergeCells(const CellRange &range)
{
    if (!canUse(range))
        return false;
    return range.first == range.last || ended(m_engine->mergeCells(range));
}

bool QExcel::setWrapText(const CellRange &range, bool on)
{
    return changeFormat(range, {.isText = {}, .wrap = on, .bold = {}, .fontSize = {}});
}

bool QExcel::setBold(const CellRange &range, bool on)
{
    return changeFormat(range, {.isText = {}, .wrap = {}, .bold = on, .fontSize = {}});
}

bool QExcel::setFontSize(const CellRange &range, double points)
{
    if (!(points >= 1 && points <= maximumPoints))
        return fail(QStringLiteral("there is no font of %1 points").arg(points));
    return changeFormat(range, {.isText = {}, .wrap = {}, .bold = {}, .fontSize = points});
}

bool QExcel::setRowHeight(int row, double points)
{
    if (!canUse(CellRange::cell(row, 1)))
        return false;
    if (!(points >= 0 && points <= maximumPoints))
        return fail(QStringLiteral("a row cannot be %1 points high").arg(points));
    return ended(m_engine->setRowHeight(row, points));
}

bool QExcel::save()
{
    if (!m_hasWorkbook)
        return fail(QStringLiteral("there is no workbook"));
    return ended(m_engine->save());
}

bool QExcel::saveAs(const QString &path)
{
    if (!m_hasWorkbook)
        return fail(QStringLiteral("there is no workbook"));
    if (path.isEmpty())
        return fail(QStringLiteral("there is no path to save to"));
    return ended(m_engine->saveAs(QFileInfo(path).absoluteFilePath()));
}

void QExcel::quit()
{
    m_hasWorkbook = false;
    m_engine->quit();
}

bool QExcel::fail(const QString &reason)
{
    m_errorText = reason;
    qCWarning(logSheets).noquote() << reason;
    return false;
}

/// Copies the engine's error text on failure.
bool QExcel::ended(bool done)
{
    return done || fail(m_engine->errorText());
}

/// True if there is a workbook and the range is in a sheet.
bool QExcel::canUse(const CellRange &range)
{
    if (!m_hasWorkbook)
        return fail(QStringLiteral("there is no workbook"));
    if (!range.isInSheet())
        return fail(QStringLiteral("no sheet has cells in rows %1 to %2 and columns %3 to %4")
                        .arg(range.first.row)
                        .arg(range.last.row)
                        .arg(range.first.column)
                        .arg(range.last.column));
    return true;
}

bool QExcel::changeFormat(const CellRange &range, const sheets::FormatChange &change)
{
    return canUse(range) && ended(m_engine->changeFormat(range, change));
}
