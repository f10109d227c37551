// Files that are damaged, encrypted or made to exhaust memory are refused with a reason.
#include "sheets/filesheetengine.h"
#include "sheets/qexcel.h"
#include "workbookfiles.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <functional>

namespace {

const QString sheetPart = QStringLiteral("xl/worksheets/sheet1.xml");

QByteArray fileBytes(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool writeBytes(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

Parts ordinary()
{
    return smallWorkbook("<row r='1'><c r='A1'><v>1</v></c></row>");
}

Parts without(const QString &part)
{
    Parts parts = ordinary();
    parts.erase(part);
    return parts;
}

Parts with(const QString &part, const QByteArray &bytes)
{
    Parts parts = ordinary();
    parts[part] = bytes;
    return parts;
}

} // namespace

class TestRefusedWorkbook : public QObject
{
    Q_OBJECT
    QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath("refused.xlsx");

    /// True when opening the file fails and the reason holds `word`.
    void verifyRefused(const QString &word)
    {
        QExcel excel(std::make_unique<sheets::FileSheetEngine>());
        QVERIFY(!excel.open(m_path));
        QVERIFY2(excel.errorText().contains(word), qPrintable(excel.errorText()));
        QVERIFY(!excel.cellText(1, 1).has_value());
    }

private Q_SLOTS:
    void refusesParts_data()
    {
        QTest::addColumn<Parts>("parts");
        QTest::addColumn<QString>("word");
        QTest::newRow("no parts of a workbook") << Parts{{"hello.txt", "hello"}} << "_rels/.rels";
        QTest::newRow("no workbook") << without("xl/workbook.xml") << "xl/workbook.xml";
        QTest::newRow("no sheet") << without(sheetPart) << sheetPart;
        QTest::newRow("no shared strings") << without("xl/sharedStrings.xml") << "sharedStrings";
        QTest::newRow("no rows") << with(sheetPart, "<worksheet/>") << "no rows";
        QTest::newRow("not XML") << with(sheetPart, "<worksheet><sheetData>") << sheetPart;
        QTest::newRow("empty part") << with(sheetPart, "") << sheetPart;
        QTest::newRow("another document") << with(sheetPart, "<html/>") << "html";
        QTest::newRow("row beyond the last") << smallWorkbook("<row r='1048577'/>") << "1048577";
        QTest::newRow("row before the first") << smallWorkbook("<row r='0'/>") << "0";
        QTest::newRow("cell beyond the last") << smallWorkbook("<row r='1'><c r='XFE1'/></row>") << "XFE1";
        QTest::newRow("more cells than columns")
            << smallWorkbook("<row>" + QByteArray("<c/>").repeated(16'385) + "</row>") << "row 1";
        QTest::newRow("deep") << smallWorkbook(QByteArray("<row>").repeated(100'000) +
                                               QByteArray("</row>").repeated(100'000))
                              << "nested";
        QTest::newRow("packed zeros")
            << with("xl/media/image1.png", QByteArray(40'000'000, '\0')) << "tightly";
    }

    void refusesParts()
    {
        QFETCH(Parts, parts);
        QFETCH(QString, word);
        QVERIFY(writeArchive(m_path, parts));
        verifyRefused(word);
    }

    void refusesWhatTakesTooMuchMemory_data()
    {
        QTest::addColumn<int>("repetitions"); // of a short element
        QTest::addColumn<QString>("word");
        QTest::newRow("large part") << 51'000'000 << "too large";
        QTest::newRow("many elements") << 17'000'000 << "too many elements";
    }

    void refusesWhatTakesTooMuchMemory()
    {
        QFETCH(int, repetitions);
        const QByteArray rows = QByteArray("<a/>").repeated(repetitions);
        QVERIFY(writeArchive(m_path, smallWorkbook(rows), Packing::Stored));
        QFETCH(QString, word);
        verifyRefused(word);
    }

    void refusesFiles_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("word");
        QVERIFY(writeArchive(m_path, ordinary()));
        const QByteArray good = fileBytes(m_path);
        QTest::newRow("empty") << QByteArray() << "_rels/.rels";
        QTest::newRow("text") << QByteArray("a,b,c\n") << "not a workbook";
        QTest::newRow("cut at the end") << good.chopped(1) << "damaged";
        QTest::newRow("cut in the middle") << good.first(good.size() / 2) << "damaged";
        const QByteArray compound("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1");
        QTest::newRow("older format") << compound + QByteArray(504, '\0') << "not a workbook of the format";
        const char16_t stream[] = u"EncryptedPackage";
        const QByteArray name(reinterpret_cast<const char *>(stream), 32);
        QTest::newRow("password") << compound + QByteArray(504, '\0') + name << "encrypted";
        QByteArray flipped = good;
        const qsizetype at = flipped.indexOf("sheet1.xml") + 12;
        flipped[at] = char(flipped[at] ^ 0x55);
        QTest::newRow("damaged part") << flipped << sheetPart;
        QVERIFY(writeArchive(m_path, ordinary(), Packing::Encrypted));
        QTest::newRow("encrypted parts") << fileBytes(m_path) << "encrypted";
    }

    void refusesFiles()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, word);
        QVERIFY(writeBytes(m_path, bytes));
        verifyRefused(word);
    }

    /// No file that is cut or altered anywhere brings the program down, whether it opens or not.
    void survivesAnyDamage()
    {
        QVERIFY(writeArchive(m_path, ordinary()));
        const QByteArray good = fileBytes(m_path);
        for (qsizetype at = 0; at < good.size(); at += 3) {
            QByteArray bytes = at % 2 ? good.first(at) : good;
            if (at % 2 == 0)
                bytes[at] = char(~bytes[at]);
            QVERIFY(writeBytes(m_path, bytes));
            QExcel excel(std::make_unique<sheets::FileSheetEngine>());
            if (excel.open(m_path)) {
                (void)excel.cellText(1, 1);
                (void)(excel.setCellText(1, 1, "x") && excel.save());
            }
        }
    }

    void refusesMissingFiles()
    {
        QExcel excel(std::make_unique<sheets::FileSheetEngine>());
        QVERIFY(!excel.open(m_folder.filePath("none.xlsx")));
        QVERIFY(!excel.open(m_folder.path()));
        QVERIFY(!excel.open(QString()));
    }
};

QTEST_GUILESS_MAIN(TestRefusedWorkbook)
#include "tst_refusedworkbook.moc"
