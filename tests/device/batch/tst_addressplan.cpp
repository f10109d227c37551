#include "device/batch/addressplan.h"
#include "device/batch/initialisationpreview.h"
#include "device/models/devicetablemodel.h"
#include "device/search/addresstools.h"
#include "tests/datatable.h"
#include "tests/device/rowsbackend.h"
#include "tests/values.h"

#include <QAbstractItemModelTester>

class TestAddressPlan : public QObject
{
    Q_OBJECT
private:
    /// The rows as the page passes them.
    static QVariantList rowsOf(const RowsFactory &site, const QStringList &macs)
    {
        QVariantList rows;
        for (const QVariant &row : std::as_const(site.rows->ipv4)) {
            const QVariantMap values = row.toJsonObject().toVariantMap();
            if (macs.contains(values.value(QStringLiteral("mac")).toString()))
                rows.append(values);
        }
        return rows;
    }

private Q_SLOTS:
    void assignsAddressesAndMarksConflicts_data()
    {
        // marks: of the first two devices; the third one is not initialised
        const auto addRow = dataTable<QString, bool, QString, QString, QList<int>>(
            {"start", "same", "mask", "addresses", "marks"});
        constexpr int fine = AddressPlan::NoIssue;
        constexpr int taken = AddressPlan::TakenByOther;
        constexpr int noDevice = AddressPlan::NoDeviceAddress;
        const auto row = [&addRow](const char *name, const QString &start, const QString &mask,
                                   const QString &addresses, const QList<int> &marks) {
            addRow(name, start, (addresses.count(start) == 3), mask, addresses, marks);
        };
        const QString mask = "255.255.255.0";
        row("over an octet", "192.168.1.254", mask, "192.168.1.254 192.168.1.255 192.168.2.0",
            {fine, noDevice});
        row("onto the gateway", "192.168.1.5", mask, "192.168.1.5 192.168.1.6 192.168.1.7",
            {fine, AddressPlan::IsGateway});
        row("into the next subnet", "10.0.0.7", "255.255.255.248", "10.0.0.7 10.0.0.8 10.0.0.9",
            {noDevice, AddressPlan::OutsideSubnet});
        row("onto another device, not onto its own address", "192.168.1.8", mask,
            "192.168.1.8 192.168.1.9 192.168.1.10", {fine, taken});
        row("onto an uninitialised device of the batch", "192.168.1.20", mask,
            "192.168.1.20 192.168.1.21 192.168.1.22", {fine, taken});
        row("the same for all", "192.168.1.30", mask, "192.168.1.30 192.168.1.30 192.168.1.30",
            {AddressPlan::TakenInBatch, AddressPlan::TakenInBatch});
        row("invalid mask", "10.0.0.7", "255.0.255.0", "10.0.0.7 10.0.0.8 10.0.0.9", {fine, fine});
    }

    void assignsAddressesAndMarksConflicts()
    {
        QFETCH(QString, start);
        QFETCH(bool, same);
        QFETCH(QString, mask);
        RowsFactory site;
        site.rows->add({.address = "192.168.1.8", .mac = "m0"});
        site.rows->add({.address = "192.168.1.9", .mac = "outside"});
        site.rows->add({.address = "192.168.1.20", .mac = "m1"});
        site.rows->add(
            {.address = "192.168.1.21", .mac = "m2", .state = sdk::InitialisationBits::Uninitialised});

        AddressPlan plan;
        const QAbstractItemModelTester tester(&plan);
        plan.setDeviceFactory(&site.factory);
        plan.setDevices(rowsOf(site, {"m0", "m1", "m2"}));
        plan.setMask(mask);
        plan.setGateway("192.168.1.6");
        plan.setSameAddress(same);
        plan.setStartAddress(start);
        QStringList addresses;
        QList<int> marks;
        for (int row = 0; row < plan.rowCount(); ++row) {
            addresses.append(plan.addressOf(row));
            marks.append(plan.get(row).value("issue").toInt());
            if (marks.constLast() == AddressPlan::TakenByOther)
                QCOMPARE(plan.otherDeviceAt(row),
                         start == "192.168.1.8" ? "B-2230-IR outside" : "B-2230-IR m2");
            else
                QCOMPARE(plan.otherDeviceAt(row), "");
        }
        QTEST(addresses.join(' '), "addresses");
        QCOMPARE(plan.skippedCount(), 1);
        QCOMPARE(plan.warningCount(), marks.size() - 1 - marks.count(AddressPlan::NoIssue));
        QCOMPARE(marks.takeLast(), int(AddressPlan::NotChanged));
        QTEST(marks, "marks");
        plan.setStartAddress("192.168.1");
        QVERIFY(plan.addressOf(0).isEmpty() && plan.warningCount() == 0);
    }

    void checksThatTheGatewayIsInTheSubnet()
    {
        AddressPlan plan;
        plan.setStartAddress("10.0.1.20");
        plan.setMask("255.255.254.0");
        for (const auto &[gateway, outside] : {std::pair("10.0.0.1", false), std::pair("10.0.1.254", false),
                                               std::pair("10.0.2.1", true), std::pair("10.0.2", false)}) {
            plan.setGateway(gateway);
            QCOMPARE(plan.isGatewayOutside(), outside);
        }
    }

    void anUntickedDeviceKeepsItsAddress()
    {
        RowsFactory site;
        for (const char *number : {"1", "2", "3"})
            site.rows->add({.address = std::string("10.0.0.") + number, .mac = std::string("m") + number});
        AddressPlan plan;
        plan.setDeviceFactory(&site.factory);
        plan.setDevices(rowsOf(site, {"m1", "m2", "m3"}));
        plan.setStartAddress("10.0.0.2");
        QCOMPARE(plan.warningCount(), 0);
        plan.setRangeChecked(1, 1, false);
        QCOMPARE(plan.checkedIdentities(), (QStringList{"m1", "m3"}));
        QCOMPARE(plan.addresses(), (QStringList{"10.0.0.2", "10.0.0.3"}));
        QCOMPARE(plan.get(0).value("issue").toInt(), int(AddressPlan::TakenByOther));
        plan.setDhcp(true);
        QCOMPARE(valuesOf(plan.get(0), "action kind"), "DHCP|0");
        QCOMPARE(valuesOf(plan.get(1), "action kind"), "|0");
    }

    void previewsAddressChanges()
    {
        RowsFactory site;
        site.rows->add({.address = "10.0.0.1", .mac = "m1", .name = "Door"});
        site.rows->add({.address = "10.0.0.2", .mac = "m2", .state = sdk::InitialisationBits::Uninitialised});
        site.rows->add({.address = "10.0.0.3", .mac = "m3"});
        site.rows->add({.address = "10.0.0.4", .mac = "m4"});
        site.rows->add({.address = "10.0.0.4", .mac = "m5"});
        site.rows->setUpgrade(2, UpgradeTools::Writing);
        BatchPreview preview;
        const QAbstractItemModelTester tester(&preview);
        preview.setDeviceFactory(&site.factory);
        preview.setAction("Reboot");
        preview.setAddresses({"10.0.0.1:37777", "10.0.0.2:37777", "10.0.0.3:37777", "10.0.0.4:37777"});
        QStringList kinds;
        for (int row = 0; row < preview.rowCount(); ++row)
            kinds.append(valuesOf(preview.get(row), "mac action kind"));
        QCOMPARE(kinds, (QStringList{"m1|Reboot|0", "m2||2", "m3||2", "m4|Reboot|1"}));
        QCOMPARE(preview.get(0).value("title").toString().section(' ', 0, 0), "Door");
        QCOMPARE(preview.warningCount(), 1);
        preview.setRangeChecked(1, 3, false);
        QCOMPARE(preview.checkedAddresses(), QStringList("10.0.0.1:37777"));
        QCOMPARE(preview.warningCount() + preview.skippedCount(), 0);
    }

    /// Only uninitialised devices get a first password.
    void previewsWhichDevicesGetAFirstPassword()
    {
        RowsFactory site;
        constexpr auto isNew = sdk::InitialisationBits::Uninitialised;
        site.rows->add({.address = "10.0.0.1", .mac = "m1"});
        site.rows->add({.address = "10.0.0.2", .mac = "m2", .state = isNew});
        site.rows->add({.address = "10.0.0.2", .mac = "m3", .state = isNew}); // factory-new
        site.rows->add({.address = "10.0.0.4", .mac = "", .state = isNew});
        DeviceTableModel table;
        table.setDeviceFactory(&site.factory);
        table.setAllChecked(true);
        InitialisationPreview preview;
        const QAbstractItemModelTester tester(&preview);
        preview.setTicked(table.checkedRows());
        QStringList rows;
        for (int row = 0; row < preview.rowCount(); ++row)
            rows.append(valuesOf(preview.get(row), "ipport kind"));
        QCOMPARE(rows, (QStringList{"10.0.0.2:37777|0", "10.0.0.2:37777|0", "10.0.0.4:37777|2",
                                    "10.0.0.1:37777|2"}));
        QVERIFY(!preview.get(2).value("note").toString().isEmpty());
        QCOMPARE(preview.deviceCount(), 2);
        preview.setRangeChecked(0, 0, false);
        QCOMPARE(preview.identities(), QStringList("m3"));
        QCOMPARE(preview.deviceCount(), 1);
    }

    void copiesEditsIntoTheGateway_data()
    {
        const auto row =
            dataTable<QString, QString, QString, QString>({"before", "after", "gateway", "expected"});
        row("last octet", "192.168.1.", "192.168.1.6", "192.168.1.", "192.168.1.1");
        row("third octet, the gateway keeps its last octet", "192.168.1.64", "192.168.2.64", "192.168.1.254",
            "192.168.2.254");
        row("last octet, replaces the gateway's last octet", "192.168.1.64", "192.168.1.65", "192.168.1.254",
            "192.168.1.1");
        row("no address at all", "", "1.2.3.4.5", "10.0.0.1", "10.0.0.1");
        row("no octet", "192.168.1.10", "1111", "192.168.1.1", "192.168.1.1");
        row("not a number", "192.168.1.10", "x", "192.168.1.1", "192.168.1.1");
        row("a sign", "192.168.1.10", "192.168.-1.10", "192.168.1.1", "192.168.1.1");
    }

    void copiesEditsIntoTheGateway()
    {
        QFETCH(QString, before);
        QFETCH(QString, after);
        QFETCH(QString, gateway);
        QTEST(AddressTools().gatewayAfterEdit(before, after, gateway), "expected");
    }

    void namesWebPages_data()
    {
        const auto row = dataTable<QString, int, QString>({"ipport", "port", "page"});
        row("plain", "192.168.1.9:37777", 80, "http://192.168.1.9");
        row("another port", "127.0.0.1:20000", 20001, "http://127.0.0.1:20001");
        row("encrypted on another port", "127.0.0.1:20000", 8443, "https://127.0.0.1:8443");
        row("IPv6", "[fe80::17]:37777", 8080, "http://[fe80::17]:8080");
        row("a name", "elsewhere.example:37777", 80, "");
    }

    void namesWebPages()
    {
        QFETCH(QString, ipport);
        QFETCH(int, port);
        QTEST(AddressTools().webPage(ipport, port, port == 8443), "page");
    }
};

QTEST_GUILESS_MAIN(TestAddressPlan)
#include "tst_addressplan.moc"
