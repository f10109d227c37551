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
        const auto row = [](const char *name, const QString &filtertype, const QString &searchtext,
                            const QList<int> &kept) {
            QTest::newRow(name) << filtertype << searchtext << kept;
        };
        row("nofilter", "nofilter", "", QList{0, 1, 2});
        row("removeall", "removeall", "", QList<int>());
        row("removeinit", "removeinit", "", QList{1});
        row("removeuninit", "removeuninit", "", QList{0, 2});
        row("type", "search", "NVR", QList{1});
        row("model", "search", "B-3", QList{2});
        row("ipport", "search", "0.1:3", QList{0, 2});
        row("mac", "search", "2:b", QList{1});
        row("vision", "search", "v3", QList{0});
        row("name", "search", "大", QList{0});
        row("small letters", "search", "ipc", QList{0});
        row("a key that is not searched", "search", "hidden", QList<int>());
        row("empty text", "search", "", QList{0, 1, 2});
        row("no pattern", "search", ".*", QList<int>());
        row("single", "single", "10.0.0.2:37777", QList{1});
        row("single of two with one address", "single", "10.0.0.1:37777", QList{0});
        row("single, whole text only", "single", "10.0.0.2", QList<int>());
        row("unknown word", "everything", "", QList<int>());
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
