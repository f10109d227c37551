#include "sheets/applicationsheetengine.h"

#include "sheets/internal/celltext.h"

#include <QAxObject>
#include <QDateTime>
#include <QDir>

namespace sheets {

namespace {

/// Days since the epoch of sheets, with the time as a fraction.
double dayNumber(const QDateTime &time)
{
    constexpr double millisecondsOfDay = 24.0 * 60 * 60 * 1000;
    return double(QDate(1899, 12, 30).daysTo(time.date())) +
           time.time().msecsSinceStartOfDay() / millisecondsOfDay;
}

QString valueText(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return truthText(value.toBool());
    case QMetaType::Double:
    case QMetaType::Float:
        return numberText(value.toDouble());
    case QMetaType::QDateTime:
        return numberText(dayNumber(value.toDateTime()));
    default:
        return value.toString();
    }
}

} // namespace

ApplicationSheetEngine::ApplicationSheetEngine()
{
    start();
}

ApplicationSheetEngine::~ApplicationSheetEngine()
{
    quit();
}

bool ApplicationSheetEngine::start()
{
    m_application = std::make_unique<QAxObject>(QStringLiteral("Excel.Application"));
    if (m_application->isNull()) {
        m_application.reset();
        return fail(QStringLiteral("no spreadsheet application can be started"));
    }
    QObject::connect(m_application.get(), &QAxObject::exception, m_application.get(),
                     [this](int code, const QString &, const QString &description) {
                         m_exception =
                             description.isEmpty() ? QStringLiteral("error %1").arg(code) : description;
                     });
    if (set(m_application.get(), "DisplayAlerts", false))
        return true;
    quit(); // its questions would block the caller
    return false;
}

bool ApplicationSheetEngine::isAvailable() const
{
    return m_application != nullptr;
}

bool ApplicationSheetEngine::createWorkbook()
{
    if (m_workbook)
        quit(); // closes the file of an earlier workbook
    if (!isAvailable() && !start())
        return false;
    m_workbooks = object(m_application.get(), "Workbooks");
    return m_workbooks && call(m_workbooks.get(), "Add") && selectActive();
}

bool ApplicationSheetEngine::open(const QString &path)
{
    if (m_workbook)
        quit(); // closes the file of an earlier workbook
    if (!isAvailable() && !start())
        return false;
    m_workbooks = object(m_application.get(), "Workbooks");
    m_hasFile = m_workbooks &&
                call(m_workbooks.get(), "Open(const QString&)", QDir::toNativeSeparators(path)) &&
                selectActive() && selectSheet(1);
    return m_hasFile;
}

/// Selects the workbook that the application has just created or opened, and its sheet.
bool ApplicationSheetEngine::selectActive()
{
    m_sheet.reset();
    m_sheets.reset();
    m_workbook = object(m_application.get(), "ActiveWorkBook");
    if (!m_workbook)
        return false;
    m_sheets = object(m_workbook.get(), "WorkSheets");
    if (!m_sheets)
        return false;
    m_sheet = object(m_workbook.get(), "ActiveSheet");
    return m_sheet != nullptr;
}

bool ApplicationSheetEngine::selectSheet(int index)
{
    Object sheet = object(m_sheets.get(), "Item(int)", index);
    if (!sheet)
        return false;
    m_sheet = std::move(sheet);
    return true;
}

std::optional<UsedRows> ApplicationSheetEngine::usedRows()
{
    const Object used = object(m_sheet.get(), "UsedRange");
    const Object rows = used ? object(used.get(), "Rows") : nullptr;
    if (!rows)
        return std::nullopt;
    m_exception.clear();
    const UsedRows range{used->property("Row").toInt(), rows->property("Count").toInt()};
    if (!responded("UsedRange"))
        return std::nullopt;
    return range;
}

std::optional<QString> ApplicationSheetEngine::cellText(CellPosition position)
{
    const Object cell = object(m_sheet.get(), "Cells(int,int)", position.row, position.column);
    if (!cell)
        return std::nullopt;
    m_exception.clear();
    const QString text = valueText(cell->property("Value"));
    return responded("Value") ? std::optional(text) : std::nullopt;
}

bool ApplicationSheetEngine::setCellText(CellPosition position, const QString &text)
{
    const Object cell = object(m_sheet.get(), "Cells(int,int)", position.row, position.column);
    return cell && set(cell.get(), "NumberFormat", QStringLiteral("@")) &&
           call(cell.get(), "SetValue(const QString&)", text);
}

bool ApplicationSheetEngine::mergeCells(const CellRange &range)
{
    const Object cells = rangeObject(range);
    return cells && call(cells.get(), "Merge()");
}

bool ApplicationSheetEngine::changeFormat(const CellRange &range, const FormatChange &change)
{
    const Object cells = rangeObject(range);
    if (!cells)
        return false;
    if (change.wrap && !set(cells.get(), "WrapText", *change.wrap))
        return false;
    if (!change.bold && !change.fontSize)
        return true;
    const Object font = object(cells.get(), "Font");
    return font && (!change.bold || set(font.get(), "Bold", *change.bold)) &&
           (!change.fontSize || set(font.get(), "Size", *change.fontSize));
}

bool ApplicationSheetEngine::setRowHeight(int row, double points)
{
    const Object object = this->object(m_sheet.get(), "Rows(int)", row);
    return object && set(object.get(), "RowHeight", points);
}

bool ApplicationSheetEngine::save()
{
    // The application would choose a file of its own for a new workbook.
    return m_hasFile ? call(m_workbook.get(), "Save()")
                     : fail(QStringLiteral("the workbook has no file yet"));
}

bool ApplicationSheetEngine::saveAs(const QString &path)
{
    const bool isSaved = call(m_workbook.get(), "SaveAs(const QString&)", QDir::toNativeSeparators(path));
    m_hasFile = m_hasFile || isSaved;
    return isSaved;
}

void ApplicationSheetEngine::quit()
{
    // The application stays in memory as long as one of its objects is referenced.
    m_sheet.reset();
    m_sheets.reset();
    m_workbook.reset();
    m_workbooks.reset();
    m_hasFile = false;
    if (m_application)
        call(m_application.get(), "Quit()");
    m_application.reset();
}

/// An object that `owner` returns. Null on failure, with the reason in errorText().
ApplicationSheetEngine::Object ApplicationSheetEngine::object(QAxObject *owner, const char *name,
                                                              const QVariant &first, const QVariant &second)
{
    m_exception.clear();
    Object object(owner->querySubObject(name, first, second));
    if (object && m_exception.isEmpty())
        return object;
    if (responded(name))
        fail(QStringLiteral("the spreadsheet application has no %1").arg(QString::fromLatin1(name)));
    return nullptr;
}

ApplicationSheetEngine::Object ApplicationSheetEngine::rangeObject(const CellRange &range)
{
    return object(m_sheet.get(), "Range(QVariant,QVariant)", positionText(range.first),
                  positionText(range.last));
}

bool ApplicationSheetEngine::set(QAxObject *object, const char *property, const QVariant &value)
{
    m_exception.clear();
    object->setProperty(property, value);
    return responded(property);
}

bool ApplicationSheetEngine::call(QAxObject *object, const char *function, const QVariant &argument)
{
    m_exception.clear();
    object->dynamicCall(function, argument);
    return responded(function);
}

/// False when the application has raised an exception since it was last cleared.
bool ApplicationSheetEngine::responded(const char *what)
{
    return m_exception.isEmpty() || fail(QStringLiteral("the spreadsheet application refuses %1: %2")
                                             .arg(QString::fromLatin1(what), m_exception));
}

} // namespace sheets
