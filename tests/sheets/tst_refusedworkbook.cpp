// Files that are damaged, encrypted or made to exhaust memory are refused with a reason.
#include "sheets/filesheetengine.h"
#include "sheets/qexcel.h"
#include "tests/datatable.h"
#include "tests/files/filecontents.h"
#include "workbookfiles.h"

#include <QTemporaryDir>

#include <functional>

namespace {

const QString sheetPart = QStringLiteral("xl/worksheets/sheet1.xml");

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
        const auto row = dataTable<Parts, QString>({"parts", "word"});
        row("no parts of a workbook", Parts{{"hello.txt", "hello"}}, "_rels/.rels");
        row("no sheet", without(sheetPart), sheetPart);
        row("no shared strings", without("xl/sharedStrings.xml"), "sharedStrings");
        row("not XML", with(sheetPart, "<worksheet><sheetData>"), sheetPart);
        row("another document", with(sheetPart, "<html/>"), "html");
        row("row beyond the last", smallWorkbook("<row r='1048577'/>"), "1048577");
        row("cell beyond the last", smallWorkbook("<row r='1'><c r='XFE1'/></row>"), "XFE1");
        row("more cells than columns",
            smallWorkbook("<row>" + QByteArray("<c/>").repeated(16'385) + "</row>"), "row 1");
        row("deep",
            smallWorkbook(QByteArray("<row>").repeated(100'000) + QByteArray("</row>").repeated(100'000)),
            "nested");
        row("packed zeros", with("xl/media/image1.png", QByteArray(40'000'000, '\0')), "tightly");
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
        // repetitions: of a short element
        const auto row = dataTable<int, QString>({"repetitions", "word"});
        row("large part", 51'000'000, "too large");
        row("many elements", 17'000'000, "too many elements");
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
        const auto row = dataTable<QByteArray, QString>({"bytes", "word"});
        QVERIFY(writeArchive(m_path, ordinary()));
        const QByteArray good = fileContents(m_path);
        row("empty", QByteArray(), "_rels/.rels");
        row("cut at the end", good.chopped(1), "damaged");
        const QByteArray compound("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1");
        row("older format", compound + QByteArray(504, '\0'), "not a workbook of the format");
        const char16_t stream[] = u"EncryptedPackage";
        const QByteArray name(reinterpret_cast<const char *>(stream), 32);
        row("password", compound + QByteArray(504, '\0') + name, "encrypted");
        QByteArray flipped = good;
        const qsizetype at = flipped.indexOf("sheet1.xml") + 12;
        flipped[at] = char(flipped[at] ^ 0x55);
        row("damaged part", flipped, sheetPart);
        QVERIFY(writeArchive(m_path, ordinary(), Packing::Encrypted));
        row("encrypted parts", fileContents(m_path), "encrypted");
    }

    void refusesFiles()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, word);
        QVERIFY(writeFile(m_path, bytes));
        verifyRefused(word);
    }
};

QTEST_GUILESS_MAIN(TestRefusedWorkbook)
#include "tst_refusedworkbook.moc"
