// Files of other applications are read: every type of cell, and the variants of the format. Files that are
// damaged, encrypted or made to exhaust memory are refused with a reason.
#include "sheets/filesheetengine.h"
#include "sheets/qexcel.h"
#include "tests/datatable.h"
#include "tests/files/filecontents.h"
#include "workbookfiles.h"

#include <QTemporaryDir>

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

class TestReadWorkbook : public QObject
{
    Q_OBJECT
    QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath("read.xlsx");

    /// Verifies that opening the file fails and that the reason contains `word`.
    void verifyRefused(const QString &word)
    {
        QExcel excel(std::make_unique<sheets::FileSheetEngine>());
        QVERIFY(!excel.open(m_path));
        QVERIFY2(excel.errorText().contains(word), qPrintable(excel.errorText()));
        QVERIFY(!excel.cellText(1, 1).has_value());
    }

private Q_SLOTS:
    void readsCells_data()
    {
        const auto row = dataTable<QByteArray, QString>({"cell", "text"});
        row("empty", "<c r='A1' s='3'/>", "");
        row("shared", "<c r='A1' t='s'><v>0</v></c>", "plain & simple");
        row("shared, rich, without its phonetic hint", "<c r='A1' t='s'><v>1</v></c>", "two runs");
        row("shared, with an escape", "<c r='A1' t='s'><v>3</v></c>", "a\rb");
        row("shared, not there", "<c r='A1' t='s'><v>5</v></c>", "");
        row("inline", "<c r='A1' t='inlineStr'><is><t>in <![CDATA[<line>]]></t></is></c>", "in <line>");
        row("integer", "<c r='A1'><v>37777</v></c>", "37777");
        row("number with noise", "<c r='A1'><v>0.30000000000000004</v></c>", "0.3");
        row("number as a power", "<c r='A1'><v>1.5E3</v></c>", "1500");
        row("true", "<c r='A1' t='b'><v>1</v></c>", "TRUE");
        row("formula", "<c r='A1'><f>1+1</f><v>2</v></c>", "2");
        row("formula of a text", "<c r='A1' t='str'><f>\"a\"</f><v>a_x005F_x0041_</v></c>", "a_x0041_");
        row("formula never worked out", "<c r='A1'><f>1+1</f></c>", "");
        row("entity of the document's own", "<c r='A1' t='str'><v>&own;</v></c>", "&own;");
    }

    void readsCells()
    {
        QFETCH(QByteArray, cell);
        const QByteArray strings =
            "<si><t>plain &amp; simple</t></si>"
            "<si><r><rPr><b/></rPr><t xml:space='preserve'>two </t></r><r><t>runs</t></r>"
            "<rPh sb='0' eb='1'><t>hint</t></rPh><phoneticPr fontId='1'/></si>"
            "<si><t xml:space='preserve'> x </t></si><si><t>a_x000D_b</t></si><si/>";
        QVERIFY(writeArchive(m_path, smallWorkbook("<row r='1'>" + cell + "</row>", strings)));
        QExcel excel(std::make_unique<sheets::FileSheetEngine>());
        QVERIFY2(excel.open(m_path), qPrintable(excel.errorText()));
        QTEST(excel.cellText(1, 1).value_or("nothing"), "text");
    }

    void findsCellsInAllNotations_data()
    {
        // change: of the small workbook's parts: "part|from|to"
        const auto row = dataTable<QString>({"change"});
        row("as usual", "||");
        row("rows and cells without numbers", "xl/worksheets/sheet1.xml| r='[A-Z]*[0-9]+'|");
        row("a prefix", "xl/worksheets/sheet1.xml|<(/?)(?=[a-z])|<\\1x:");
        row("a document type", "xl/worksheets/sheet1.xml|^|<!DOCTYPE x [<!ENTITY own 'y'>]>");
        row("absolute target", "xl/_rels/workbook.xml.rels|\"worksheets/|\"/xl/worksheets/");
        row("another prefix of relations", "xl/workbook.xml|([ :])r([:=])|\\1rel\\2");
        row("a chart before it", "xl/workbook.xml|<sheets>|<sheets><sheet name='C' r:id='r8'/>");
    }

    void findsCellsInAllNotations()
    {
        QFETCH(QString, change);
        Parts parts = smallWorkbook("<row r='1'><c r='A1' s='1'/></row>"
                                    "<row r='2'><c r='A2'/><c r='B2'><v>5</v></c></row>"
                                    "<row r='3'><c r='A3' t='str'><v>end</v></c></row>"
                                    "<row r='120000'><c r='A120000' s='1'/></row>");
        const QStringList fields = change.split('|', Qt::KeepEmptyParts);
        if (!fields[0].isEmpty()) {
            QString text = parts[fields[0]];
            const QString before = text;
            text.replace(QRegularExpression(fields.size() > 3 ? fields[1] + '|' + fields[2] : fields[1]),
                         fields.last());
            QVERIFY(text != before);
            parts[fields[0]] = text.replace("xmlns=\"http://schemas.openxmlformats.org/spreadsheetml",
                                            text.contains("<x:") ? "xmlns:x=\"http://x" : "xmlns=\"http://x")
                                   .toUtf8();
        }
        QVERIFY(writeArchive(m_path, parts));
        QExcel excel(std::make_unique<sheets::FileSheetEngine>());
        QVERIFY2(excel.open(m_path), qPrintable(excel.errorText()));
        QCOMPARE(excel.firstUsedRow(), 2); // rows without values do not count
        QCOMPARE(excel.usedRowCount(), 2);
        QCOMPARE(excel.cellText(2, 2), "5");
        QCOMPARE(excel.cellText(3, 1), "end");
        QCOMPARE(excel.cellText(3, 2), "");
    }

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
        row("packed zeros", with("xl/media/image1.png", QByteArray(40'000'000, '\0')), "compression ratio");
    }

    void refusesParts()
    {
        QFETCH(Parts, parts);
        QFETCH(QString, word);
        QVERIFY(writeArchive(m_path, parts));
        verifyRefused(word);
    }

    void refusesFilesThatExhaustMemory_data()
    {
        // repetitions: of a short element
        const auto row = dataTable<int, QString>({"repetitions", "word"});
        row("large part", 51'000'000, "too large");
        row("many elements", 17'000'000, "too many elements");
    }

    void refusesFilesThatExhaustMemory()
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
        row("truncated", good.chopped(1), "damaged");
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

QTEST_GUILESS_MAIN(TestReadWorkbook)
#include "tst_readworkbook.moc"
