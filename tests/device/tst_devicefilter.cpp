#include "device/devicefilter.h"

#include <QTest>

class TestDeviceFilter : public QObject
{
    Q_OBJECT
private:
    const QVariantList m_rows = {
        QJsonObject{{"state", true},
                    {"type", "IPC"},
                    {"model", "B-1"},
                    {"ipport", "10.0.0.1:37777"},
                    {"mac", "02:aa"},
                    {"vision", "v3"},
                    {"name", "大厅"},
                    {"result", "hidden"}},
        QJsonObject{{"state", false},
                    {"type", "NVR"},
                    {"model", "B-2"},
                    {"ipport", "10.0.0.2:37777"},
                    {"mac", "02:bb"},
                    {"vision", "v4"},
                    {"name", "Yard 1"}},
        QJsonObject{{"state", true}, {"type", "SD"}, {"model", "B-3"}, {"ipport", "10.0.0.1:37777"}},
    };

private Q_SLOTS:
    void keepsTheRowsOfItsWord_data()
    {
        QTest::addColumn<QString>("filtertype");
        QTest::addColumn<QString>("searchtext");
        QTest::addColumn<QList<int>>("kept");
        QTest::newRow("nofilter") << "nofilter"
                                  << "" << QList{0, 1, 2};
        QTest::newRow("removeall") << "removeall"
                                   << "" << QList<int>();
        QTest::newRow("removeinit") << "removeinit"
                                    << "" << QList{1};
        QTest::newRow("removeuninit") << "removeuninit"
                                      << "" << QList{0, 2};
        QTest::newRow("type") << "search"
                              << "NVR" << QList{1};
        QTest::newRow("model") << "search"
                               << "B-3" << QList{2};
        QTest::newRow("ipport") << "search"
                                << "0.1:3" << QList{0, 2};
        QTest::newRow("mac") << "search"
                             << "2:b" << QList{1};
        QTest::newRow("vision") << "search"
                                << "v3" << QList{0};
        QTest::newRow("name") << "search"
                              << "大" << QList{0};
        QTest::newRow("small letters") << "search"
                                       << "ipc" << QList{0};
        QTest::newRow("a key that is not searched") << "search"
                                                    << "hidden" << QList<int>();
        QTest::newRow("empty text") << "search"
                                    << "" << QList{0, 1, 2};
        QTest::newRow("no pattern") << "search"
                                    << ".*" << QList<int>();
        QTest::newRow("single") << "single"
                                << "10.0.0.2:37777" << QList{1};
        QTest::newRow("single of two with one address") << "single"
                                                        << "10.0.0.1:37777" << QList{0};
        QTest::newRow("single, whole text only") << "single"
                                                 << "10.0.0.2" << QList<int>();
        QTest::newRow("unknown word") << "everything"
                                      << "" << QList<int>();
    }

    void keepsTheRowsOfItsWord()
    {
        QFETCH(QString, filtertype);
        QFETCH(QString, searchtext);
        QFETCH(QList<int>, kept);
        QVariantList expected;
        for (const int row : kept)
            expected.append(m_rows.at(row));
        QCOMPARE(filteredRows(m_rows, filtertype, searchtext, RowFamily::IPv4), expected);
    }

    void singleIsForIPv4Only()
    {
        QVERIFY(filteredRows(m_rows, "single", "10.0.0.2:37777", RowFamily::IPv6).isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestDeviceFilter)
#include "tst_devicefilter.moc"
