#include "sheets/filesheetengine.h"

#include "files/filereplacement.h"
#include "sheets/internal/emptyworkbook.h"
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
    const QString failure = QStringLiteral("cannot begin a workbook");
    QString reason;
    const QByteArray bytes = emptyWorkbook(reason);
    return bytes.isEmpty() ? fail(failure + QLatin1String(": ") + reason) : load(bytes, failure);
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

/// Takes the workbook of a file's bytes and picks its first sheet. `failure` begins the reason when that
/// fails.
bool FileSheetEngine::load(const QByteArray &bytes, const QString &failure)
{
    auto workbook = std::make_unique<Workbook>();
    if (!workbook->load(bytes) || !workbook->selectSheet(1))
        return fail(failure + QLatin1String(": ") + workbook->errorText());
    m_workbook = std::move(workbook);
    return true;
}

bool FileSheetEngine::selectSheet(int index)
{
    return ended(m_workbook->selectSheet(index));
}

std::optional<UsedRows> FileSheetEngine::usedRows()
{
    return m_workbook->usedRows();
}

std::optional<QString> FileSheetEngine::cellText(CellPlace place)
{
    return m_workbook->cellText(place);
}

bool FileSheetEngine::setCellText(CellPlace place, const QString &text)
{
    return ended(m_workbook->setCellText(place, text));
}

bool FileSheetEngine::mergeCells(const CellRange &range)
{
    return ended(m_workbook->mergeCells(range));
}

bool FileSheetEngine::changeFormat(const CellRange &range, const FormatChange &change)
{
    if (range.cellCount() > maximumChangedCells)
        return fail(QStringLiteral("%1 are too many cells to format at once").arg(rangeText(range)));
    return ended(m_workbook->changeFormat(range, change));
}

bool FileSheetEngine::setRowHeight(int row, double points)
{
    return ended(m_workbook->setRowHeight(row, points));
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
    if (!m_workbook->build(bytes))
        return fail(QStringLiteral("cannot make %1: %2").arg(path, m_workbook->errorText()));
    const QString failure = replaceFile(path, bytes);
    if (!failure.isEmpty())
        return fail(QStringLiteral("cannot write %1: %2").arg(path, failure));
    m_path = path;
    return true;
}

void FileSheetEngine::quit()
{
    m_workbook.reset();
    m_path.clear();
}

/// Takes over the workbook's reason when it is not done.
bool FileSheetEngine::ended(bool done)
{
    return done || fail(m_workbook->errorText());
}

} // namespace sheets
