// A new workbook that is filled and saved is read back with the same contents.
#include "sheets/filesheetengine.h"
#include "sheets/keptworkbook.h"
#include "sheets/qexcel.h"
#include "tests/datatable.h"
#include "tests/files/filesizelimit.h"
#include "workbookfiles.h"

#include <QDir>
#include <QTemporaryDir>

#include <limits>

using sheets::CellRange;

namespace {

std::unique_ptr<sheets::SheetEngine> fileEngine()
{
    return std::make_unique<sheets::FileSheetEngine>();
}

} // namespace

class TestNewWorkbook : public QObject
{
    Q_OBJECT
    QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath(QStringLiteral("设备.xlsx"));

private Q_SLOTS:
    void keepsTexts_data()
    {
        const auto row = dataTable<int, bool>({"lastMergedRow", "isAscending"});
        row("nothing merged, rows in ascending order", 0, true);
        row("nothing merged, rows in descending order", 0, false);
        row("merged in one row, rows in ascending order", 1, true);
        row("merged in one row, rows in descending order", 1, false);
        row("merged in two rows, rows in ascending order", 2, true);
    }

    void keepsTexts()
    {
        QFETCH(const int, lastMergedRow);
        QFETCH(const bool, isAscending);
        const QStringList texts = {"007",
                                   "=1+1",
                                   "  spaces  ",
                                   "two\nlines\r\n",
                                   "<&>\"'",
                                   "摄像机 😀",
                                   "_x0041_",
                                   "1E5",
                                   "TRUE",
                                   QString(32'767, QChar(u'长')),
                                   "http://10.0.0.1",
                                   "\x01"};
        QExcel excel(fileEngine());
        QVERIFY(excel.createWorkbook());
        QVERIFY(excel.setCellText(1, 2, "hidden by the merged cell"));
        QVERIFY(excel.setCellText(1, 1, "title"));
        if (lastMergedRow > 0)
            QVERIFY(excel.mergeCells({{1, 1}, {lastMergedRow, 19}}));
        for (int number = 0; number < texts.size(); ++number) {
            const int i = isAscending ? number : int(texts.size()) - 1 - number;
            QVERIFY2(excel.setCellText(3 + i, 1 + i % 3, texts[i]), qPrintable(excel.errorText()));
        }
        QVERIFY2(excel.saveAs(m_path), qPrintable(excel.errorText()));

        QExcel reader(fileEngine());
        QVERIFY2(reader.open(m_path), qPrintable(reader.errorText()));
        QCOMPARE(reader.firstUsedRow(), 1);
        QCOMPARE(reader.usedRowCount(), 2 + int(texts.size()));
        QCOMPARE(reader.cellText(1, 1), "title");
        QCOMPARE(reader.cellText(1, 2), lastMergedRow > 0 ? "" : "hidden by the merged cell");
        for (int i = 0; i < texts.size(); ++i)
            QCOMPARE(reader.cellText(3 + i, 1 + i % 3), texts[i]);
        QCOMPARE(reader.cellText(500, 500), "");
        const bool isMerged = readArchive(m_path)["xl/worksheets/sheet1.xml"].contains(
            "<mergeCell ref=\"A1:S" + QByteArray::number(lastMergedRow) + "\"/>");
        QCOMPARE(isMerged, lastMergedRow > 0);
    }

    void keepsFormats_data()
    {
        const auto row = dataTable<bool>({"isAscending"});
        row("rows in ascending order", true);
        row("rows in descending order", false);
    }

    void keepsFormats()
    {
        QFETCH(const bool, isAscending);
        QExcel excel(fileEngine());
        QVERIFY(excel.createWorkbook());
        const auto changeFirstRow = [&excel] {
            QVERIFY(excel.setWrapText(CellRange::cell(1, 1), true));
            QVERIFY(excel.setFontSize(CellRange::cell(1, 1), 13.5));
            QVERIFY(excel.setRowHeight(1, 160.25));
        };
        if (isAscending)
            changeFirstRow();
        QVERIFY(excel.setBold({{2, 1}, {2, 2}}, true));
        QVERIFY(excel.setCellText(2, 1, "a"));
        QVERIFY(excel.setCellText(2, 2, "b"));
        QVERIFY(excel.setBold(CellRange::cell(2, 2), false));
        if (!isAscending)
            changeFirstRow();
        QVERIFY(excel.saveAs(m_path));
        Parts parts = readArchive(m_path);
        const QByteArray styles = parts["xl/styles.xml"];
        QCOMPARE(styles.count("<b/>"), 1);
        QCOMPARE(styles.count("<sz val=\"13.5\"/>"), 1);
        QVERIFY(styles.contains("wrapText=\"1\""));
        QVERIFY(styles.contains("numFmtId=\"49\"")); // "@" in the format's own list
        QVERIFY(parts["xl/worksheets/sheet1.xml"].contains("ht=\"160.25\" customHeight=\"1\""));
    }

    void refusesOverlappingMergedCells()
    {
        QExcel excel(fileEngine());
        QVERIFY(excel.createWorkbook());
        QVERIFY(excel.mergeCells({{1, 1}, {1, 3}}));
        QVERIFY(excel.mergeCells({{1, 1}, {1, 3}})); // the same range
        QVERIFY(!excel.mergeCells({{1, 3}, {1, 4}}));
        QVERIFY(excel.mergeCells({{2, 3}, {2, 4}}));
    }

    /// The temporary files reach a limit, as on a full disk: the rows would be missing in the compressed
    /// file.
    void reportsAFullTemporaryFolder()
    {
        QExcel excel(fileEngine());
        QVERIFY(excel.createWorkbook());
        constexpr int rows = 2000;
        QVERIFY(QFile::remove(m_path) || !QFile::exists(m_path));
        {
            const FileSizeLimit limit(64 * 1024);
            for (int row = 1; row <= rows; ++row)
                QVERIFY(excel.setCellText(row, 1, "the same text in all rows"));
            QVERIFY(!excel.saveAs(m_path));
        }
        QVERIFY(!excel.errorText().isEmpty());
        QVERIFY(!QFile::exists(m_path));
        QVERIFY(!excel.saveAs(m_path)); // the rows are lost
    }

    void refusesInvalidCellsAndFormats()
    {
        QExcel excel(fileEngine());
        QVERIFY(!excel.setCellText(1, 1, "x")); // there is no workbook yet
        QVERIFY(!excel.cellText(1, 1).has_value());
        QCOMPARE(excel.usedRowCount(), -1);
        QVERIFY(!excel.saveAs(m_path));
        QVERIFY(excel.createWorkbook());
        QCOMPARE(excel.usedRowCount(), 0);
        QVERIFY(excel.setCellText(1'048'576, 16'384, "x"));
        for (const auto &[row, column] : {std::pair(0, 1), {1, 0}, {-1, 1}, {1'048'577, 1}, {1, 16'385}}) {
            QVERIFY(!excel.setCellText(row, column, "x"));
            QVERIFY(!excel.cellText(row, column).has_value());
        }
        QVERIFY(!excel.setCellText(1, 1, QString(32'768, QChar(u'x'))));
        QVERIFY(!excel.mergeCells({{2, 2}, {1, 1}}));
        QVERIFY(!excel.setBold({{1, 1}, {1'048'576, 16'384}}, true));
        QVERIFY(!excel.setFontSize(CellRange::cell(1, 1), std::numeric_limits<double>::quiet_NaN()));
        QVERIFY(!excel.setRowHeight(1, 410));
        QVERIFY(!excel.selectSheet(2));
        QVERIFY(!excel.errorText().isEmpty());
        excel.quit();
        QVERIFY(!excel.setCellText(1, 1, "x"));
    }

    /// A filled workbook is saved elsewhere when its file cannot be written.
    void aFilledWorkbookIsKept_data()
    {
        // isFolderInTheWay: a folder has the name of the file
        // kept: below the home folder
        const auto row = dataTable<bool, bool, QString>({"isFolderGone", "isFolderInTheWay", "kept"});
        row("in its file", false, false, "work/list.xlsx");
        row("next to it", false, true, "work/list_Result.xlsx");
        row("among the documents, which were not there", true, false, "Documents/list_Result.xlsx");
    }

    void aFilledWorkbookIsKept()
    {
        QFETCH(const bool, isFolderGone);
        QFETCH(const bool, isFolderInTheWay);
        QFETCH(const QString, kept);
        const QTemporaryDir home;
        qputenv("HOME", home.path().toUtf8());
        const QDir folder(home.filePath("work"));
        QVERIFY(QDir().mkpath(folder.path()));
        QString path = folder.filePath("list.xlsx");
        QExcel workbook;
        QVERIFY(workbook.createWorkbook() && workbook.saveAs(path));
        QVERIFY(workbook.setCellText(1, 1, "done"));
        if (isFolderGone)
            QVERIFY(QDir(folder).removeRecursively());
        if (isFolderInTheWay)
            QVERIFY(QFile::remove(path) && QDir().mkpath(path + "/x"));

        QVERIFY2(keepWorkbook(workbook, path, "Result"), qPrintable(workbook.errorText()));
        QCOMPARE(path, home.filePath(kept));
        QExcel reader;
        QVERIFY(reader.open(path));
        QCOMPARE(reader.cellText(1, 1), "done");
    }
};

QTEST_GUILESS_MAIN(TestNewWorkbook)
#include "tst_newworkbook.moc"
