// The engine of the spreadsheet application makes the correct calls in the correct order.
#include "automation/axdouble.h"
#include "sheets/applicationsheetengine.h"
#include "sheets/qexcel.h"
#include "tests/datatable.h"

#include <QDateTime>
#include <QDir>
#include <QTemporaryFile>

using sheets::ApplicationSheetEngine;
using sheets::CellRange;

namespace {

const QString app = QStringLiteral("Excel.Application");
const QString book = app + ".ActiveWorkBook";
const QString sheet = book + ".ActiveSheet";
const QString firstSheet = book + ".WorkSheets.Item(int) 1";

/// The changing calls since the last invocation.
QStringList takeChanges()
{
    static const QRegularExpression change(QStringLiteral(" = |\\.(Add$|Open|Quit|Merge|Save|SetValue)"));
    return std::exchange(AxRecord::instance().calls, {}).filter(change);
}

} // namespace

class TestApplicationSheetEngine : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { AxRecord::instance() = AxRecord(); }

    void createsAWorkbook()
    {
        QExcel excel(std::make_unique<ApplicationSheetEngine>());
        QVERIFY(excel.createWorkbook());
        QVERIFY(excel.setCellText(3, 2, "007"));
        QVERIFY(excel.mergeCells({{1, 1}, {1, 19}}));
        QVERIFY(excel.setWrapText({{1, 1}, {1, 19}}, true));
        QVERIFY(excel.setFontSize(CellRange::cell(2, 1), 12));
        QVERIFY(excel.setBold(CellRange::cell(2, 1), true));
        QVERIFY(excel.setRowHeight(1, 160));
        QVERIFY(!excel.save()); // the application would choose a file
        QVERIFY(excel.saveAs("/folder/device.xlsx"));
        QVERIFY(excel.save());
        excel.quit();
        const QString cell = sheet + ".Cells(int,int) 3 2";
        const QString range = sheet + ".Range(QVariant,QVariant) A1 S1";
        const QString font = sheet + ".Range(QVariant,QVariant) A2 A2.Font";
        const QString path = QDir::toNativeSeparators(QFileInfo("/folder/device.xlsx").absoluteFilePath());
        QCOMPARE(takeChanges(),
                 (QStringList{app + ".DisplayAlerts = false", app + ".Workbooks.Add",
                              cell + ".NumberFormat = @", cell + ".SetValue(const QString&) 007",
                              range + ".Merge()", range + ".WrapText = true", font + ".Size = 12",
                              font + ".Bold = true", sheet + ".Rows(int) 1.RowHeight = 160",
                              book + ".SaveAs(const QString&) " + path, book + ".Save()", app + ".Quit()"}));
        QCOMPARE(AxRecord::instance().alive, 0); // otherwise the application would stay in memory
        QVERIFY(excel.createWorkbook());         // it is started again
    }

    void readsAWorkbook()
    {
        QTemporaryFile file;
        QVERIFY(file.open());
        auto &record = AxRecord::instance();
        record.responses = {{firstSheet + ".UsedRange.Row", 2}, {firstSheet + ".UsedRange.Rows.Count", 40}};
        QExcel excel(std::make_unique<ApplicationSheetEngine>());
        QVERIFY(excel.open(file.fileName()));
        QCOMPARE(takeChanges().last(),
                 app + ".Workbooks.Open(const QString&) " + QDir::toNativeSeparators(file.fileName()));
        QCOMPARE(excel.usedRowCount(), 40);
        QCOMPARE(excel.firstUsedRow(), 2);
        const QList<std::pair<QVariant, QString>> values = {
            {"text", "text"}, {37777.0, "37777"}, {0.1 + 0.2, "0.3"},
            {true, "TRUE"},   {QVariant(), ""},   {QDateTime({2024, 2, 29}, {12, 0}), "45351.5"}};
        for (const auto &[value, text] : values) {
            record.responses[firstSheet + ".Cells(int,int) 3 1.Value"] = value;
            QCOMPARE(excel.cellText(3, 1), text);
        }
        const int alive = record.alive;
        (void)excel.cellText(3, 1);
        QCOMPARE(record.alive, alive); // no object is leaked for each cell
        QVERIFY(!excel.open(file.fileName() + ".missing"));
        QCOMPARE(record.alive, 0); // the first file is no longer open in the application
    }

    void reportsAMissingApplication_data()
    {
        const auto row = dataTable<bool, QString>({"isInstalled", "refused"});
        row("not installed", false, QString());
        row("asks questions", true, QStringLiteral("DisplayAlerts")); // a dialog would block the caller
    }

    void reportsAMissingApplication()
    {
        QFETCH(const bool, isInstalled);
        QFETCH(const QString, refused);
        AxRecord::instance().isInstalled = isInstalled;
        AxRecord::instance().refused = refused;
        auto engine = std::make_unique<ApplicationSheetEngine>();
        QVERIFY(!engine->isAvailable());
        QVERIFY(!engine->errorText().isEmpty());
        QExcel excel(std::move(engine));
        QVERIFY(!excel.createWorkbook());
        QVERIFY(!excel.setCellText(1, 1, "x"));
    }
};

QTEST_GUILESS_MAIN(TestApplicationSheetEngine)
#include "tst_applicationsheetengine.moc"
