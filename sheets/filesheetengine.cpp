#include "sheets/filesheetengine.h"

#include "files/filereplacement.h"
#include "sheets/internal/newworkbook.h"
#include "sheets/internal/workbook.h"

#include <QFile>

namespace sheets {

namespace {

constexpr qint64 maximumFileSize = 128LL * 1024 * 1024;
constexpr qint64 maximumChangedCells = 100'000;

} // namespace

FileSheetEngine::FileSheetEngine() = default;

FileSheetEngine::~FileSheetEngine() = default;

bool FileSheetEngine::createWorkbook()
{
    quit();
    auto workbook = std::make_unique<NewWorkbook>();
    if (!workbook->create())
        return fail(QStringLiteral("cannot create a workbook: %1").arg(workbook->errorText()));
    m_newWorkbook = std::move(workbook);
    return true;
}

bool FileSheetEngine::open(const QString &path)
{
    quit();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return fail(QStringLiteral("cannot open %1: %2").arg(path, file.errorString()));
    if (file.size() > maximumFileSize)
        return fail(QStringLiteral("%1 is too large").arg(path));
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return fail(QStringLiteral("cannot read %1: %2").arg(path, file.errorString()));
    if (!load(bytes, QStringLiteral("cannot open %1").arg(path)))
        return false;
    m_path = path;
    return true;
}

/// Loads the workbook of a file's bytes and selects its first sheet. `failure` is the start of the error
/// text.
bool FileSheetEngine::load(const QByteArray &bytes, const QString &failure)
{
    auto workbook = std::make_unique<Workbook>();
    if (!workbook->load(bytes) || !workbook->selectSheet(1))
        return fail(failure + QLatin1String(": ") + workbook->errorText());
    m_workbook = std::move(workbook);
    m_newWorkbook.reset();
    return true;
}

/// True when the range is in a row that the new workbook still accepts.
bool FileSheetEngine::isNewRow(const CellRange &range) const
{
    return m_newWorkbook && m_newWorkbook->accepts(range);
}

/// Loads a new workbook, so that its cells can be read, and changed in any order.
bool FileSheetEngine::needWorkbook()
{
    if (m_workbook)
        return true;
    QByteArray bytes;
    const QString failure = QStringLiteral("cannot continue with the new workbook");
    if (!m_newWorkbook->build(bytes))
        return fail(failure + QLatin1String(": ") + m_newWorkbook->errorText());
    return load(bytes, failure);
}

bool FileSheetEngine::selectSheet(int index)
{
    return needWorkbook() && ended(m_workbook->selectSheet(index));
}

std::optional<UsedRows> FileSheetEngine::usedRows()
{
    return needWorkbook() ? std::optional(m_workbook->usedRows()) : std::nullopt;
}

std::optional<QString> FileSheetEngine::cellText(CellPosition position)
{
    return needWorkbook() ? std::optional(m_workbook->cellText(position)) : std::nullopt;
}

bool FileSheetEngine::setCellText(CellPosition position, const QString &text)
{
    if (!isNewRow({position, position}))
        return needWorkbook() && ended(m_workbook->setCellText(position, text));
    m_newWorkbook->setCellText(position, text);
    return true;
}

bool FileSheetEngine::mergeCells(const CellRange &range)
{
    if (!isNewRow(range))
        return needWorkbook() && ended(m_workbook->mergeCells(range));
    return m_newWorkbook->mergeCells(range) || fail(m_newWorkbook->errorText());
}

bool FileSheetEngine::changeFormat(const CellRange &range, const FormatChange &change)
{
    if (range.cellCount() > maximumChangedCells)
        return fail(QStringLiteral("%1 has too many cells for one format change").arg(rangeText(range)));
    if (!isNewRow(range))
        return needWorkbook() && ended(m_workbook->changeFormat(range, change));
    m_newWorkbook->changeFormat(range, change);
    return true;
}

bool FileSheetEngine::setRowHeight(int row, double points)
{
    if (points <= 0 || !isNewRow(CellRange::cell(row, 1)))
        return needWorkbook() && ended(m_workbook->setRowHeight(row, points));
    m_newWorkbook->setRowHeight(row, points);
    return true;
}

bool FileSheetEngine::save()
{
    if (m_path.isEmpty())
        return fail(QStringLiteral("the workbook has no file yet"));
    return saveAs(m_path);
}

bool FileSheetEngine::saveAs(const QString &path)
{
    QByteArray bytes;
    const bool isBuilt = m_newWorkbook ? m_newWorkbook->build(bytes) : m_workbook->build(bytes);
    if (!isBuilt) {
        const QString &reason = m_newWorkbook ? m_newWorkbook->errorText() : m_workbook->errorText();
        return fail(QStringLiteral("cannot create %1: %2").arg(path, reason));
    }
    const QString failure = replaceFile(path, bytes);
    if (!failure.isEmpty())
        return fail(QStringLiteral("cannot write %1: %2").arg(path, failure));
    m_path = path;
    return true;
}

void FileSheetEngine::quit()
{
    m_newWorkbook.reset();
    m_workbook.reset();
    m_path.clear();
}

/// Copies the workbook's error text on failure.
bool FileSheetEngine::ended(bool done)
{
    return done || fail(m_workbook->errorText());
}

} // namespace sheets
