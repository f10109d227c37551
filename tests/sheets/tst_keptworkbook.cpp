// A workbook that took work to fill is kept somewhere, whatever became of its file.
#include "sheets/keptworkbook.h"
#include "sheets/qexcel.h"
#include "tests/datatable.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

class TestKeptWorkbook : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void keeps_data()
    {
        // isFolderInTheWay: a folder has taken the name of the file
        // kept: below the home folder
        const auto row = dataTable<bool, bool, QString>({"isFolderGone", "isFolderInTheWay", "kept"});
        row("in its file", false, false, "work/list.xlsx");
        row("beside it", false, true, "work/list_Result.xlsx");
        row("among the documents, which were not there", true, false, "Documents/list_Result.xlsx");
    }

    void keeps()
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

QTEST_GUILESS_MAIN(TestKeptWorkbook)
#include "tst_keptworkbook.moc"
