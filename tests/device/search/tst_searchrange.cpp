#include "device/search/addresstools.h"
#include "device/search/searchrange.h"
#include "device/store/ipv4address.h"
#include "sdk/blocktext.h"
#include "tests/datatable.h"

class TestSearchRange : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void readsAddresses_data()
    {
        // number: -1: invalid
        const auto row = dataTable<QString, double>({"text", "number"});
        row("lowest", "0.0.0.0", 0.0);
        row("highest", "255.255.255.255", 4294967295.0);
        row("octets in order", "1.2.3.4", 16909060.0);
        row("leading zeros", "010.001.000.009", 167837705.0);
        for (const char *text :
             {"", "1.2.3", "1.2.3.4.5", "1.2.3.", ".1.2.3", "256.1.1.1", "1.2.3.4 ", "+1.2.3.4", "1.2.3.-4",
              "1.2.3.0x4", "1.2.3.0004", "a.b.c.d", "１.2.3.4", "fe80::1"})
            row(qPrintable(QString("no address: %1").arg(text)), QString(text), -1.0);
    }

    void readsAddresses()
    {
        QFETCH(QString, text);
        QFETCH(double, number);
        QCOMPARE(ipv4Number(text).has_value(), number >= 0);
        QCOMPARE(AddressTools().isLegalAddress(text), number >= 0);
        QCOMPARE(AddressTools().toNumber(text), std::max(number, 0.0));
    }

    void acceptsBeginningsOfAddresses()
    {
        const AddressTools tools;
        for (const char *text : {"", "1", "192.", "192.168", "192.168.1.2", "010.1.1.1"})
            QVERIFY2(tools.mayBecomeAddress(text), text);
        for (const char *text : {"192.168.1.500", "256", "1..2", ".1", "1.2.3.4.", "1.2.3.4.5", "0001", "+1"})
            QVERIFY2(!tools.mayBecomeAddress(text), text);
        for (const char *text : {"", "2", "255.255.25", "255.255.255.2", "255.255.255.0"})
            QVERIFY2(tools.mayBecomeMask(text), text);
        for (const char *text : {"3", "255.0.255", "255.255.255.3", "255.255.255.255", "0.0.0.0"})
            QVERIFY2(!tools.mayBecomeMask(text), text);
    }

    void checksARange_data()
    {
        const auto row = dataTable<QString, QString, int>({"begin", "end", "fault"});
        row("one address", "10.0.1.1", "10.0.1.1", 0);
        row("seventeen apart", "10.0.1.1", "10.0.18.1", 2);
        row("other second octet", "10.0.1.1", "10.1.1.1", 2);
        row("start above end", "10.0.2.1", "10.0.1.1", 1);
        row("start is not an address", "10.0.1", "10.0.1.1", 3);
        row("end is not an address", "10.0.1.1", "printer", 4);
    }

    void checksARange()
    {
        QFETCH(QString, begin);
        QFETCH(QString, end);
        QTEST(int(AddressTools().searchRangeError(begin, end)), "fault");
    }

    void splitsARangeIntoBlocks_data()
    {
        // blocks: "first last" of each
        const auto row = namedTable<QString, QString, QStringList>({"begin", "end", "blocks"});
        row("192.168.1.10", "192.168.3.20",
            {"192.168.1.10 192.168.1.255", "192.168.2.0 192.168.2.255", "192.168.3.0 192.168.3.20"});
        row("192.168.1.5", "192.168.1.5", {"192.168.1.5 192.168.1.5"});
        row("255.255.254.250", "255.255.255.255",
            {"255.255.254.250 255.255.254.255", "255.255.255.0 255.255.255.255"});
        row("10.0.2.1", "10.0.1.1", {}); // the third octet of the end is less than that of the start
        row("10.0.1.9", "10.0.1.8", {}); // empty range
        row("0.0.0.0", "10.0.1.8", {});  // no range set
        row("10.0.1.9", "0.0.0.0", {});
        row("10.0.1.1", "10.1.1.1", {"10.0.1.1 10.0.1.255"}); // the first two octets are ignored
        row("10.1.1.1", "10.0.5.1", {});
    }

    void splitsARangeIntoBlocks()
    {
        QFETCH(QString, begin);
        QFETCH(QString, end);
        QStringList blocks;
        for (const auto &request : searchRequests({*ipv4Number(begin), *ipv4Number(end)})) {
            QCOMPARE(request.size, 16392U);
            QVERIFY(request.count >= 1 && request.count <= sdk::maximumSearchAddresses);
            const auto text = [&](int entry) {
                return QString::fromStdString(std::string(sdk::blockText(request.addresses.at(entry))));
            };
            QCOMPARE(*ipv4Number(text(request.count - 1)) - *ipv4Number(text(0)) + 1, quint32(request.count));
            blocks.append(text(0) + ' ' + text(request.count - 1));
        }
        QTEST(blocks, "blocks");
    }
};

QTEST_GUILESS_MAIN(TestSearchRange)
#include "tst_searchrange.moc"
