#include "device/devicefilter.h"
#include "tests/datatable.h"

class TestDeviceFilter : public QObject
{
    Q_OBJECT
private:
    static QJsonObject row(bool state, const QString &type, const QString &model, const QString &ipport,
                           const QString &mac = {}, const QString &vision = {}, const QString &name = {})
    {
        return {{"state", state}, {"type", type},     {"model", model}, {"ipport", ipport},
                {"mac", mac},     {"vision", vision}, {"name", name},   {"result", "hidden"}};
    }
    const QVariantList m_rows = {row(true, "IPC", "B-1", "10.0.0.1:37777", "02:aa", "v3", "大厅"),
                                 row(false, "NVR", "B-2", "10.0.0.2:37777", "02:bb", "v4", "Yard 1"),
                                 row(true, "SD", "B-3", "10.0.0.1:37777")};

private Q_SLOTS:
    void keepsTheRowsOfItsWord_data()
    {
        const auto row = dataTable<QString, QString, QList<int>>({"filtertype", "searchtext", "kept"});
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
