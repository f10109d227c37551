// A changed workbook keeps all other contents.
#include "sheets/filesheetengine.h"
#include "sheets/qexcel.h"
#include "tests/datatable.h"
#include "workbookfiles.h"

#include <QDir>
#include <QTemporaryDir>

#include <algorithm>
#include <map>

using sheets::CellRange;

namespace {

const QString sheetPart = QStringLiteral("xl/worksheets/sheet1.xml");
const QString stylesPart = QStringLiteral("xl/styles.xml");

/// The small workbook with styles: cell format 1 is bold in column B, cell format 2 is text.
Parts styledWorkbook(const QByteArray &rows)
{
    Parts parts = smallWorkbook(rows);
    parts["xl/_rels/workbook.xml.rels"].replace(
        "</Relationships>",
        "<Relationship Id=\"rId1\" Type=\"http://schemas.openxmlformats.org/officeDocument/2006/"
        "relationships/styles\" Target=\"styles.xml\"/></Relationships>");
    parts[stylesPart] =
        "<styleSheet xmlns=\"" + mainNamespace +
        "\"><fonts count=\"2\"><font><sz val=\"10\"/></font>"
        "<font><b/><sz val=\"10\"/><name val=\"Arial\"/></font></fonts><cellXfs count=\"3\">"
        "<xf numFmtId=\"0\" fontId=\"0\"/><xf numFmtId=\"0\" fontId=\"1\"><protection locked=\"0\"/></xf>"
        "<xf numFmtId=\"49\" fontId=\"0\"/></cellXfs></styleSheet>";
    return parts;
}

} // namespace

class TestChangeWorkbook : public QObject
{
    Q_OBJECT
    QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath("changed.xlsx");

    /// Opens the workbook of the parts, lets `change` change it, and saves it. The parts of what was saved.
    template<typename Change>
    Parts changed(const Parts &parts, const Change &change)
    {
        QExcel excel(std::make_unique<sheets::FileSheetEngine>());
        if (!writeArchive(m_path, parts) || !excel.open(m_path) || !change(excel) || !excel.save()) {
            qWarning().noquote() << excel.errorText();
            return {};
        }
        return readArchive(m_path);
    }

private Q_SLOTS:
    void writesTexts_data()
    {
        const auto row = dataTable<int, int, QByteArray>({"row", "column", "rows"});
        const QByteArray text = "t=\"inlineStr\"><is><t>n&lt;w</t></is></c>";
        const QByteArray plainText =
            QByteArray(text).insert(text.indexOf('>'), " s=\"3\""); // had no look before
        row("over a number", 2, 2,
            "<row r='2' spans='2:4'><c r='B2' s='2' " + text +
                "<c r='D2' t='b'><v>1</v></c></row><row><c><v>5</v></c></row>");
        row("after all rows", 9, 2,
            "<row r='2' spans='2:4'><c r='B2' s='2'><v>4</v></c><c r='D2' t='b'>"
            "<v>1</v></c></row><row><c><v>5</v></c></row><row r='9'><c r='B9' s='3' " +
                text + "</row>");
        row("between cells", 2, 3,
            "<row r='2'><c r='B2' s='2'><v>4</v></c><c r='C2' " + plainText +
                "<c r='D2' t='b'><v>1</v></c></row><row><c><v>5</v></c></row>");
        row("after a cell without a position", 3, 2,
            "<row r='2' spans='2:4'><c r='B2' s='2'><v>4</v></c>"
            "<c r='D2' t='b'><v>1</v></c></row><row><c><v>5</v></c>"
            "<c r='B3' s='3' " +
                text + "</row>");
    }

    void writesTexts()
    {
        QFETCH(int, row);
        QFETCH(int, column);
        QFETCH(QByteArray, rows);
        Parts parts = styledWorkbook("<row r=\"2\" spans=\"2:4\"><c r=\"B2\" s=\"2\"><v>4</v></c>"
                                     "<c r=\"D2\" t=\"b\"><v>1</v></c></row><row><c><v>5</v></c></row>");
        parts[sheetPart].replace("<sheetData>",
                                 "<cols><col min=\"2\" max=\"2\" style=\"1\"/></cols><sheetData>");
        Parts after = changed(parts, [&](QExcel &excel) {
            return excel.setCellText(row, column, "n<w") && excel.cellText(row, column) == "n<w";
        });
        QByteArray expected = parts[sheetPart];
        const qsizetype from = expected.indexOf("<row");
        expected.replace(from, expected.indexOf("</sheetData>") - from, rows.replace('\'', '"'));
        // Cell format 2 is already a text format; the others get an added one.
        if (!after.empty() && !after[sheetPart].contains("s=\"3\""))
            QCOMPARE(after[stylesPart], parts[stylesPart]);
        QCOMPARE(after[sheetPart], expected);
        for (const auto &[name, bytes] : parts) {
            if (name != sheetPart && name != stylesPart)
                QCOMPARE(after[name], bytes);
        }
    }

    void writesToARowOfSeveralElements()
    {
        const std::map<int, QString> texts = {{1, "a"}, {3, "c"}, {5, "e"}};
        const Parts parts = styledWorkbook("<row r=\"2\"><c r=\"B2\"><v>1</v></c></row>"
                                           "<row r=\"2\"><c r=\"D2\"><v>2</v></c></row>");
        changed(parts, [&](QExcel &excel) {
            return std::all_of(texts.begin(), texts.end(), [&excel](const auto &text) {
                return excel.setCellText(2, text.first, text.second);
            });
        });
        QExcel excel(std::make_unique<sheets::FileSheetEngine>());
        QVERIFY(excel.open(m_path));
        for (const auto &[column, text] : texts)
            QCOMPARE(excel.cellText(2, column), text);
        QCOMPARE(excel.cellText(2, 2), "1");
        QCOMPARE(excel.cellText(2, 4), "2");
    }

    void keepsOtherPartsPacked()
    {
        Parts parts = styledWorkbook("<row r=\"1\"><c r=\"A1\" s=\"2\"/></row>");
        parts["xl/media/picture.png"] = QByteArray("\x89PNG\r\n\0\x1A", 8).repeated(1000);
        parts["customXml/item1.xml"] = "<any>thing</any>\r\n";
        QVERIFY(writeArchive(m_path, parts));
        QStringList before = packedParts(m_path);
        changed(parts, [](QExcel &excel) { return excel.setCellText(1, 1, "x"); });
        QStringList after = packedParts(m_path);
        const auto isSheet = [](const QString &line) {
            return line.startsWith(sheetPart);
        };
        QCOMPARE(before.removeIf(isSheet), 1);
        QCOMPARE(after.removeIf(isSheet), 1);
        QCOMPARE(after, before);
        QCOMPARE(QDir(m_folder.path()).entryList(QDir::Files), QStringList("changed.xlsx"));
    }

    void removesFormulasFromTheCalculationChain()
    {
        Parts parts = styledWorkbook(
            "<row r=\"1\"><c r=\"A1\" s=\"2\"><f>1+1</f><v>2</v></c>"
            "<c r=\"B1\" s=\"2\"><f t=\"shared\" ref=\"B1:B2\" si=\"0\">A1</f><v>2</v></c></row>");
        parts["xl/calcChain.xml"] = "<calcChain xmlns=\"" + mainNamespace + "\"><c r=\"A1\"/></calcChain>";
        parts["xl/_rels/workbook.xml.rels"]
            .replace("sharedStrings\"", "calcChain\"")
            .replace("/xl/sharedStrings.xml", "calcChain.xml");
        parts["[Content_Types].xml"].replace("/xl/sharedStrings", "/xl/calcChain");
        Parts after = changed(parts, [](QExcel &excel) {
            return !excel.setCellText(1, 2, "x") && !excel.mergeCells({{1, 1}, {1, 2}}) && // another needs it
                   excel.cellText(1, 2) == "2" && excel.setCellText(1, 1, "x");
        });
        QVERIFY(!after.empty() && !after.contains("xl/calcChain.xml"));
        QVERIFY(!after["[Content_Types].xml"].contains("calcChain"));
        QVERIFY(!after["xl/_rels/workbook.xml.rels"].contains("calcChain"));
    }

    void changesSheetsInADialectWithPrefixes()
    {
        Parts parts = smallWorkbook("");
        parts[sheetPart] = "\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"UTF-8\" "
                           "standalone=\"yes\"?>\r\n<x:worksheet xmlns:x=\"" +
                           mainNamespace +
                           "\"><x:dimension ref=\"B2\"/><x:sheetData><x:row r=\"2\"><x:c r=\"B2\"><x:v>"
                           "1</x:v></x:c></x:row></x:sheetData></x:worksheet>";
        Parts after = changed(parts, [](QExcel &excel) {
            return excel.setCellText(3, 1, "") && excel.setCellText(2, 3, " y") &&
                   excel.mergeCells({{4, 1}, {4, 2}});
        });
        QCOMPARE(
            after[sheetPart],
            "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?><x:worksheet xmlns:x=\"" +
                mainNamespace +
                "\"><x:dimension ref=\"A2:C3\"/><x:sheetData><x:row r=\"2\"><x:c r=\"B2\"><x:v>1</x:v></x:c>"
                "<x:c r=\"C2\" t=\"inlineStr\" s=\"1\"><x:is><x:t xml:space=\"preserve\"> "
                "y</x:t></x:is></x:c>"
                "</x:row><x:row r=\"3\"><x:c r=\"A3\" s=\"1\"/></x:row></x:sheetData>"
                "<x:mergeCells count=\"1\"><x:mergeCell ref=\"A4:B4\"/></x:mergeCells></x:worksheet>");
    }
};

QTEST_GUILESS_MAIN(TestChangeWorkbook)
#include "tst_changeworkbook.moc"
