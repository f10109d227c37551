#include "device/models/devicetablemodel.h"
#include "tests/datatable.h"
#include "tests/device/rowsbackend.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

class TestDeviceTableModel : public QObject
{
    Q_OBJECT
private:
    std::unique_ptr<RowsFactory> m_site;
    std::unique_ptr<DeviceTableModel> m_model;
    std::unique_ptr<QAbstractItemModelTester> m_tester;

    QVariant cell(int row, const QByteArray &role) const
    {
        return m_model->data(m_model->index(row), m_model->roleNames().key(role));
    }

    QStringList column(const QByteArray &role) const
    {
        QStringList texts;
        for (int row = 0; row < m_model->rowCount(); ++row)
            texts.append(cell(row, role).toString());
        return texts;
    }

private Q_SLOTS:
    void init()
    {
        m_site = std::make_unique<RowsFactory>();
        RowsBackEnd &rows = *m_site->rows;
        rows.add({.address = "192.168.1.100", .mac = "m0", .type = "NVR", .name = "cam 10"});
        rows.add({.address = "192.168.1.9",
                  .mac = "m1",
                  .name = "Cam 9",
                  .state = sdk::InitialisationBits::Uninitialised});
        rows.add({.address = "10.0.0.1", .mac = "m2", .name = "cam 1", .port = 80});
        rows.add({.address = "10.0.0.1", .mac = "m3", .name = "cam 2", .port = 37777});
        rows.add({.address = "10.0.0.1", .mac = "m4", .name = "cam 3", .port = 37777});
        rows.add({.address = "fe80::1", .mac = "m5", .ipVersion = 6});
        m_model = std::make_unique<DeviceTableModel>();
        m_tester = std::make_unique<QAbstractItemModelTester>(m_model.get());
        m_model->setDeviceFactory(&m_site->factory);
    }

    void cleanup()
    {
        m_tester.reset();
        m_model.reset();
        m_site.reset();
    }

    void showsTheRowsThatMatchTheFilters_data()
    {
        const auto row = dataTable<bool, bool, QString, QStringList>(
            {"initialised", "uninitialised", "text", "identities"});
        row("all", true, true, "", QStringList{"m0", "m1", "m2", "m3", "m4"});
        row("uninitialised", false, true, "", QStringList{"m1"});
        row("neither", false, false, "", QStringList());
        row("text", true, true, "cam 1", QStringList{"m0", "m2"});
        row("type in lower case", true, true, "nvr", QStringList{"m0"});
        row("not a regular expression", true, true, ".*", QStringList());
        row("text among the initialised", true, false, "168", QStringList{"m0"});
    }

    void showsTheRowsThatMatchTheFilters()
    {
        QFETCH(bool, initialised);
        QFETCH(bool, uninitialised);
        QFETCH(QString, text);
        m_model->setShowInitialised(initialised);
        m_model->setShowUninitialised(uninitialised);
        m_model->setSearchText(text);
        QTEST(column("identity"), "identities");
        QCOMPARE(m_model->totalCount(), 5);
    }

    void rowsWithTheSameAddressAreTickedSeparately()
    {
        m_site->rows->add({.address = "0.0.0.0", .mac = "m6", .ipVersion = 6});
        m_site->rows->add({.address = "0.0.0.0", .mac = "m7", .ipVersion = 6});
        QJsonObject second = m_site->rows->ipv6.last().toJsonObject();
        second.insert(DeviceRowKey::duplicate, 1); // as the store sets it
        m_site->rows->ipv6.last() = second;
        m_model->setIpv6(true);
        m_model->setChecked(2, true);
        QCOMPARE(column("checked"), QStringList({"false", "false", "true"}));
        QCOMPARE(m_model->checkedCount(), 1);
        m_model->setIpv6(false); // the other list has separate ticks
        m_model->setChecked(0, true);
        m_model->setIpv6(true);
        QCOMPARE(column("checked"), QStringList({"false", "false", "true"}));
        m_model->setIpv6(false);
        QCOMPARE(m_model->checkedMacs(), QStringList("m0"));
    }

    void marksConflictsOfAddressAndPort()
    {
        QCOMPARE(column("conflict"), QStringList({"false", "false", "false", "true", "true"}));
        QCOMPARE(m_model->conflictCount(), 2);
        m_model->setSearchText("cam 2"); // the other row in conflict is hidden
        QCOMPARE(column("conflict"), QStringList("true"));
        QCOMPARE(m_model->conflictCount(), 1);
        m_model->setSearchText("");
        m_site->rows->ipv4.removeLast();
        m_model->refresh();
        QCOMPARE(m_model->conflictCount(), 0);
    }

    void sortsByTheValuesOfAColumn_data()
    {
        const auto row = dataTable<QString, QStringList>({"key", "ordered"});
        row("MACs", "mac",
            QStringList{"02:08:9c:00:00:01", "02:0B:00:00:00:00", "02:2d:00:00:00:00", "02:9c:00:00:00:00",
                        "02:aa:00:00:00:00", "unknown"});
        row("addresses", "ipport",
            QStringList{"9.0.0.1:80", "10.0.0.1:80", "10.0.0.1:37777", "[::1]:80", "[::10.0.0.1]:80",
                        "[::1:0:0:1]:80", "[fe80::9%eth0]:80", "[fe80::10]:80", "[fe80::10]:443",
                        "[fe80:0:0:0:1::]:80", "[fe80:::1]:80", "camera:80"});
        row("versions", "vision",
            QStringList{"", "v1.9.10", "v2.40", "v2.840.0.1", "v2.840-0000.2.R", "v2.840.0.10", "v10.1"});
        row("numbers in names", "name", QStringList{"", "cam 1", "Cam 2", "cam 10", "Door"});
        row("results", "upgraderes", QStringList{"-1", "0", "2", "10"});
    }

    void sortsByTheValuesOfAColumn()
    {
        QFETCH(const QString, key);
        QFETCH(const QStringList, ordered);
        m_site->rows->ipv4.clear();
        for (qsizetype index = 0; index < ordered.size(); ++index) {
            const QString &value = ordered.at(ordered.size() - 1 - index);
            QJsonObject row = {{DeviceRowKey::mac, "row " + value}};
            row.insert(key, key == DeviceRowKey::upgraderes ? QJsonValue(value.toInt()) : QJsonValue(value));
            m_site->rows->ipv4.append(row);
        }
        m_model->toggleSort(key);
        QCOMPARE(column(key.toUtf8()), ordered);
    }

    void oddAddressesAreLastOrFirst()
    {
        m_site->rows->ipv4.append(
            QJsonObject{{DeviceRowKey::mac, "m9"}, {DeviceRowKey::ipport, "camera:80"}});
        m_model->setSort(DeviceRowKey::ipport, Qt::AscendingOrder);
        QCOMPARE(m_model->rowOf("m9"), 5);
        m_model->setOddAddressesFirst(true);
        QCOMPARE(m_model->rowOf("m9"), 0);
    }

    /// During a search, rows change between two reads of the list.
    void aRowChangedDuringARefreshHidesNoOther()
    {
        int readings = 0;
        m_site->rows->beforeReading = [&] {
            m_site->rows->setUpgrade(0, ++readings % 2 ? UpgradeTools::Waiting : UpgradeTools::Writing);
        };
        m_model->setShowUninitialised(false);
        QCOMPARE(column("identity"), QStringList({"m0", "m2", "m3", "m4"}));
    }

    void ticksRemainUntilTheDeviceIsRemoved()
    {
        m_model->setChecked(0, true);
        m_model->setRangeChecked(2, 99, true);
        QCOMPARE(m_model->checkedMacs(), QStringList({"m0", "m2", "m3", "m4"}));
        QCOMPARE(m_model->checkState(), Qt::PartiallyChecked);
        m_model->setSearchText("cam 1"); // actions on checked rows never include hidden rows
        QCOMPARE(m_model->checkedMacs(), QStringList({"m0", "m2"}));
        QCOMPARE(m_model->checkState(), Qt::Checked);
        m_model->setSearchText("");
        QCOMPARE(m_model->checkedCount(), 4);

        const QVariantList rows = m_site->rows->ipv4;
        m_site->rows->ipv4.clear(); // a new search starts
        m_model->refresh();
        QCOMPARE(m_model->checkState(), Qt::Unchecked);
        m_site->rows->ipv4 = rows;
        m_model->refresh();
        QCOMPARE(m_model->checkedCount(), 0);
    }

    void countsTickedRowsBeingUpgraded()
    {
        m_site->rows->setUpgrade(0, UpgradeTools::Waiting);
        m_site->rows->setUpgrade(1, UpgradeTools::Writing);
        m_site->rows->setUpgrade(2, UpgradeTools::Stuck);
        m_model->refresh();
        QCOMPARE(m_model->checkedUpgradingCount(), 0);
        m_model->setAllChecked(true);
        QCOMPARE(m_model->checkedUpgradingCount(), 2);
        m_model->setChecked(1, false);
        QCOMPARE(m_model->checkedUpgradingCount(), 1);
        m_site->rows->setUpgrade(0, UpgradeTools::Success);
        m_model->refresh();
        QCOMPARE(m_model->checkedUpgradingCount(), 0);
    }

    void existingRowsRemainWhenOthersAreAdded()
    {
        QSignalSpy reset(m_model.get(), &QAbstractItemModel::modelReset);
        QSignalSpy inserted(m_model.get(), &QAbstractItemModel::rowsInserted);
        QSignalSpy changed(m_model.get(), &QAbstractItemModel::dataChanged);
        m_site->rows->add(
            {.address = "192.168.1.100", .mac = "m9"}); // creates a conflict with an existing row
        m_model->refresh();
        QCOMPARE(reset.size(), 0);
        QCOMPARE(inserted.size(), 1);
        QVERIFY(!changed.isEmpty());
        QVERIFY(cell(0, "conflict").toBool());

        m_site->rows->ipv4.move(0, 2); // another order
        m_model->refresh();
        QCOMPARE(reset.size(), 1);
        QCOMPARE(column("identity").first(), "m1");
    }
};

QTEST_GUILESS_MAIN(TestDeviceTableModel)
#include "tst_devicetablemodel.moc"
