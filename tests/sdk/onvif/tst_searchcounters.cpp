// The report of a search, and the assignment of MACs to devices.
#include "sdk/blocktext.h"
#include "sdk/onvif/discovery/macholders.h"
#include "sdk/onvif/discovery/searchcounters.h"
#include "tests/datatable.h"

#include <cerrno>

using namespace Qt::StringLiterals;
using namespace sdk;
using namespace sdk::onvif;

namespace {

constexpr std::uint32_t bit(SearchObstacle obstacle)
{
    return 1U << static_cast<std::uint32_t>(obstacle);
}

InterfaceState interface(const std::string &address)
{
    return {.name = "eth0",
            .address = address,
            .prefixLength = 24,
            .isUp = true,
            .hasLink = true,
            .sendsToGroups = true};
}

SearchReport reportOf(const SearchCounters &counters, const std::vector<InterfaceState> &interfaces,
                      const std::vector<ReportedDevice> &devices = {})
{
    SearchReport report{};
    counters.fill(report, interfaces, devices);
    return report;
}

} // namespace

class SearchCountersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesObstacles_data()
    {
        // state: of the interface; sendError, messages: of one request
        const auto row =
            dataTable<QString, int, int, quint32>({"state", "sendError", "messages", "obstacles"});
        row("with a response", u"ready"_s, 0, 1, 0U);
        row("without a response", u"ready"_s, 0, 0, bit(SearchObstacle::NoResponse));
        row("not sent", u"ready"_s, ENETUNREACH, 0, bit(SearchObstacle::SendFailed));
        row("switched off", u"down"_s, ENETDOWN, 0,
            bit(SearchObstacle::InterfaceDown) | bit(SearchObstacle::SendFailed));
        row("no cable", u"no link"_s, 0, 0, bit(SearchObstacle::NoLink) | bit(SearchObstacle::NoResponse));
        // Messages of an unknown interface are not counted for an interface without an address.
        row("no address", u"no address"_s, 0, 1, bit(SearchObstacle::NoAddress));
    }

    void namesObstacles()
    {
        QFETCH(QString, state);
        QFETCH(int, sendError);
        QFETCH(int, messages);
        QFETCH(quint32, obstacles);
        InterfaceState shown = interface(state == u"no address"_s ? "" : "192.0.2.5");
        shown.isUp = state != u"down"_s;
        shown.hasLink = shown.isUp && state != u"no link"_s;
        SearchCounters counters;
        counters.noteRequest(shown.address, sendError);
        for (int message = 0; message < messages; ++message)
            counters.noteMessage(shown.address);
        const SearchReport report = reportOf(counters, {shown});
        QCOMPARE(report.count, 1U);
        QCOMPARE(report.interfaces[0].obstacles, obstacles);
        QCOMPARE(report.interfaces[0].sendError, shown.address.empty() ? 0 : sendError);
    }

    void countsByInterface()
    {
        InterfaceState loopback = interface("127.0.0.1");
        loopback.isLoopback = true;
        const InterfaceState second = interface("198.51.100.5");
        SearchCounters counters;
        counters.noteMessage("192.0.2.5");
        counters.noteDiscarded("192.0.2.5", SearchDiscard::Leaving);
        counters.noteMessage("198.51.100.5");
        counters.noteAskedAddress(0);
        counters.noteAskedAddress(EHOSTUNREACH);
        counters.noteRespondingAddress();
        const std::vector<ReportedDevice> devices = {{"192.0.2.77", "192.0.2.5"},
                                                     {"192.0.3.77", "192.0.2.5"},
                                                     {"fe80::7%eth0", "fe80::5%eth0"},
                                                     {"198.51.100.255", "198.51.100.5"}};
        SearchReport report = reportOf(counters, {loopback, interface("192.0.2.5"), second}, devices);
        QCOMPARE(report.count, 2U);
        QVERIFY(blockText(report.interfaces[0].address) == "192.0.2.5");
        QCOMPARE(report.interfaces[0].devicesFound, 2U);
        QCOMPARE(report.interfaces[0].discarded[static_cast<std::size_t>(SearchDiscard::Leaving)], 1U);
        QCOMPARE(report.interfaces[1].messagesReceived, 1U);
        QCOMPARE(report.addressesAsked, 2U);
        QCOMPARE(report.addressesNoRoute, 1U);
        QCOMPARE(report.addressesResponding, 1U);
        QCOMPARE(report.foreignDevices, 1U);

        counters.clear();
        report = reportOf(counters, {loopback});
        QCOMPARE(report.count, 1U); // it is the only one
        QCOMPARE(report.addressesAsked, 0U);
        const std::vector<InterfaceState> many(2 * maximumReportedInterfaces, second);
        QCOMPARE(reportOf(counters, many).count, static_cast<std::uint32_t>(maximumReportedInterfaces));
    }

    void aMacStaysWithItsDevice_data()
    {
        // first, second: an address, a UUID, and "named" or "neighbour"; whether the second gets the MAC, and
        // whether the first still does
        const auto row =
            dataTable<QStringList, QStringList, bool, bool>({"first", "second", "admitted", "keeps"});
        const QString own = u"192.0.2.7"_s;
        const QString other = u"192.0.2.8"_s;
        const QString named = u"named"_s;
        const QString neighbour = u"neighbour"_s;
        row("again", {own, u"a"_s, named}, {own, u"a"_s, named}, true, true);
        row("a message names the MAC of another device", {own, u"a"_s, neighbour}, {other, u"b"_s, named},
            false, true);
        row("the message comes first", {other, u"b"_s, named}, {own, u"a"_s, neighbour}, true, false);
        row("one device with two addresses", {own, u"a"_s, neighbour}, {other, u"a"_s, neighbour}, true,
            true);
        row("two devices at one address", {own, u"a"_s, neighbour}, {own, u"b"_s, neighbour}, false, true);
        row("the other address family", {own, u"a"_s, neighbour}, {u"fe80::7%eth0"_s, u"a"_s, named}, true,
            true);
    }

    void aMacStaysWithItsDevice()
    {
        QFETCH(QStringList, first);
        QFETCH(QStringList, second);
        QFETCH(bool, admitted);
        QFETCH(bool, keeps);
        MacHolders holders;
        const std::string mac = "02:1a:c5:00:40:17";
        const auto admits = [&](const QStringList &device) {
            FoundDevice found;
            found.address = device.at(0).toStdString();
            found.announcement.uuid = device.at(1).toStdString();
            found.isNeighbour = device.at(2) == u"neighbour"_s;
            (found.isNeighbour ? found.mac : found.announcement.mac) = mac;
            holders.admit(found);
            const bool isAdmitted = identityOf(found) == mac;
            return isAdmitted && found.service.identity == mac;
        };
        QVERIFY(admits(first));
        QCOMPARE(admits(second), admitted);
        QCOMPARE(admits(first), keeps);
        holders.clear();
        QVERIFY(admits(second));
    }
};

QTEST_GUILESS_MAIN(SearchCountersTest)
#include "tst_searchcounters.moc"
