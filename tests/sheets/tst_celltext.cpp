#include "sheets/cellrange.h"
#include "sheets/internal/celltext.h"
#include "sheets/tablecells.h"

#include <QTest>

using namespace sheets;

Q_DECLARE_METATYPE(std::optional<qint64>)

class TestCellText : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void readsWholeNumbers_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<std::optional<qint64>>("number");
        const auto row = [](const char *text, std::optional<qint64> number) {
            QTest::newRow(text) << QString(text) << number;
        };
        row("80", 80);
        row(" 80.0 ", 80);
        row("8e1", 80);
        row("-1.9", -1);
        row("1000000000", 1000000000);
        row("1000000001", std::nullopt);
        row("1e300", std::nullopt);
        row("nan", std::nullopt);
        row("inf", std::nullopt);
        row("80 a", std::nullopt);
        row("", std::nullopt);
    }

    void readsWholeNumbers()
    {
        QFETCH(QString, text);
        QTEST(sheets::wholeNumber(text), "number");
    }

    void escapesTexts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("escaped");
        QTest::newRow("plain") << "Kamera <1> & _x_"
                               << "Kamera <1> & _x_";
        QTest::newRow("layout") << " a\tb\nc "
                                << " a\tb\nc ";
        QTest::newRow("carriage return") << "a\r\nb"
                                         << "a_x000D_\nb";
        QTest::newRow("control character") << QString("\x01|\x1F") << "_x0001_|_x001F_";
        QTest::newRow("null") << QString(QChar(0)) << "_x0000_";
        QTest::newRow("no character") << QString(QChar(0xFFFF)) << "_xFFFF_";
        QTest::newRow("an escape as text") << "_x0041_"
                                           << "_x005F_x0041_";
        QTest::newRow("small letters") << "_x00af_!"
                                       << "_x005F_x00af_!";
        QTest::newRow("overlapping escapes") << "_x0041_x0042_"
                                             << "_x005F_x0041_x005F_x0042_";
        QTest::newRow("an escaped escape") << "_x005F_x0041_"
                                           << "_x005F_x005F_x005F_x0041_";
        QTest::newRow("not an escape") << "_x004G_ _x041_ _X0041_ _x0041"
                                       << "_x004G_ _x041_ _X0041_ _x0041";
    }

    void escapesTexts()
    {
        QFETCH(QString, text);
        QFETCH(QString, escaped);
        QCOMPARE(escapedCellText(text), escaped);
        QCOMPARE(unescapedCellText(escaped), text);
    }

    void namesPlaces_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("row"); // 0: no place
        QTest::addColumn<int>("column");
        QTest::newRow("first") << "A1" << 1 << 1;
        QTest::newRow("one letter") << "Z9" << 9 << 26;
        QTest::newRow("two letters") << "AA10" << 10 << 27;
        QTest::newRow("turn of letters") << "AZ1" << 1 << 52;
        QTest::newRow("three letters") << "ZZ1" << 1 << 702;
        QTest::newRow("last") << "XFD1048576" << 1048576 << 16384;
        for (const char *text : {"", "A", "1", "A0", "XFE1", "A1048577", "A1B", "1A", "A-1", "A1:B2", "Ä1",
                                 "AAAAAAAAAAAAAAAAAAAA1", "A99999999999999999999"})
            QTest::newRow(qPrintable(QString("none: %1").arg(text))) << QString(text) << 0 << 0;
    }

    void namesPlaces()
    {
        QFETCH(QString, text);
        QFETCH(int, row);
        QFETCH(int, column);
        const auto place = cellPlace(text);
        QCOMPARE(place.has_value(), row != 0);
        QCOMPARE(place.value_or(CellPlace()), (CellPlace{row, column}));
        if (place)
            QCOMPARE(placeText(*place), text);
    }

    void readsRanges()
    {
        const CellRange range{{2, 1}, {7, 3}};
        QCOMPARE(rangeText(range), "A2:C7");
        for (const char *text : {"A2:C7", "$A$2:$C$7", "c7:a2", "A7:C2"})
            QVERIFY2(cellRange(QString(text)) == range, text);
        QCOMPARE(rangeText(CellRange::cell(3, 2)), "B3");
        QVERIFY(!cellRange(QString("A2:")));
    }
};

QTEST_GUILESS_MAIN(TestCellText)
#include "tst_celltext.moc"
