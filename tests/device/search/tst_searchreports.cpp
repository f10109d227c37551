// The report of a search: its text, and the number of missing devices.
#include "device/search/searchreports.h"
#include "sdk/blocktext.h"
#include "sdk/searchreportblocks.h"
#include "tests/datatable.h"
#include "tests/media/quietnetlibrary.h"
#include "tests/values.h"

#include <cerrno>

using sdk::SearchObstacle;

namespace {

/// An address of an interface and its counters in a report.
struct Address
{
    std::string interface = "eth0";
    std::string address = "192.0.2.5";
    QList<SearchObstacle> obstacles = {};
    std::uint32_t sent = 0;
    std::uint32_t received = 0;
    std::uint32_t leaving = 0;
    std::uint32_t unreadable = 0;
    std::uint32_t found = 0;
};

sdk::SearchReport reportOf(const QList<Address> &addresses)
{
    sdk::SearchReport report{};
    report.size = sizeof(report);
    for (const Address &address : addresses) {
        sdk::SearchInterfaceReport &entry = report.interfaces[report.count++];
        sdk::setBlockText(entry.name, address.interface);
        sdk::setBlockText(entry.address, address.address);
        entry.prefixLength = 24;
        for (const SearchObstacle obstacle : address.obstacles)
            entry.obstacles |= 1U << static_cast<unsigned>(obstacle);
        if (address.obstacles.contains(SearchObstacle::SendFailed))
            entry.sendError = EACCES;
        entry.requestsSent = address.sent;
        entry.messagesReceived = address.received;
        entry.devicesFound = address.found;
        entry.discarded[static_cast<std::size_t>(sdk::SearchDiscard::Leaving)] = address.leaving;
        entry.discarded[static_cast<std::size_t>(sdk::SearchDiscard::Unreadable)] = address.unreadable;
    }
    return report;
}

/// Returns the report of a test.
class ReportingLibrary : public QuietNetLibrary
{
public:
    bool NetGetSearchReport(sdk::SearchReport &report) override
    {
        report = m_report;
        return true;
    }
    sdk::SearchReport m_report = reportOf({Address()});
};

} // namespace

class TestSearchReports : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void showsOnlyRelevantLines_data()
    {
        // text: of all blocks, without the advice on obstacles
        const auto row = dataTable<QList<Address>, QString>({"addresses", "text"});
        row("no interface", {}, "网卡\n! 本机没有可用的网卡\n");
        row("responses over one address family",
            {{.sent = 4, .received = 6, .leaving = 1, .unreadable = 2},
             {.address = "fe80::5%eth0", .obstacles = {SearchObstacle::NoResponse}, .sent = 4}},
            "eth0\n地址: 192.0.2.5/24, fe80::5/24\n已发送: 8 个请求\n已收到: 6 条消息\n找到: 0 台设备\n"
            "未采用: 无法识别的消息 2 条，设备离开网络的通知 1 条\n");
        row("no response", {{.obstacles = {SearchObstacle::NoResponse}, .sent = 4}},
            "eth0\n地址: 192.0.2.5/24\n已发送: 4 个请求\n已收到: 0 条消息\n找到: 0 台设备\n! "
            "没有收到任何应答\n");
        row("two interfaces, one without a cable, one switched off",
            {{.address = "", .obstacles = {SearchObstacle::NoLink, SearchObstacle::NoAddress}},
             {.interface = "eth1", .obstacles = {SearchObstacle::InterfaceDown, SearchObstacle::SendFailed}}},
            "eth0\n! 网络未连接\n\neth1\n地址: 192.0.2.5/24\n! 网卡已停用\n");
        row("refused by the system", {{.obstacles = {SearchObstacle::SendFailed}}},
            "eth0\n地址: 192.0.2.5/24\n! 系统拒绝发送请求：" + qt_error_string(EACCES) + "\n");
    }

    void showsOnlyRelevantLines()
    {
        QFETCH(QList<Address>, addresses);
        QFETCH(QString, text);
        QList<SearchReportBlock> blocks = SearchReportText::blocksOf(reportOf(addresses));
        for (SearchReportBlock &block : blocks) {
            for (SearchReportObstacle &obstacle : block.obstacles) {
                QVERIFY(!obstacle.advice.isEmpty());
                obstacle.advice.clear();
            }
        }
        QCOMPARE(SearchReportText::textOf(blocks).remove("  \n"), text);
    }

    void eachNetworkIsListedOnce()
    {
        const sdk::SearchReport report =
            reportOf({{.address = "192.0.2.5"},
                      {.address = "192.0.2.9"},
                      {.address = "fe80::5%eth0"},
                      {.address = ""},
                      {.address = "127.0.0.1", .obstacles = {SearchObstacle::NoMulticast}},
                      {.address = "10.1.2.3"}});
        QCOMPARE(SearchReportText::networksOf(report), "192.0.2.0/24, 10.1.2.0/24");
    }

    void countsTheAddressesOfThisSearch_data()
    {
        // before, after: the library's counter of queried addresses at the start and the end of the search
        const auto row = dataTable<bool, int, int, QString>({"localSegment", "before", "after", "asked"});
        row("after other ranges", false, 300, 556, "256 个地址");
        row("with the local segment", true, 200, 256, "256 个地址");
        row("none", true, 256, 0, "");
    }

    void countsTheAddressesOfThisSearch()
    {
        QFETCH(bool, localSegment);
        QFETCH(int, before);
        QFETCH(int, after);
        QFETCH(QString, asked);
        const auto net = std::make_shared<ReportingLibrary>();
        SearchReports reports(net);
        net->m_report.addressesAsked = static_cast<std::uint32_t>(before);
        reports.begin(localSegment, "192.0.2.0 - 192.0.2.255");
        QVERIFY(!reports.isAvailable());
        net->m_report.addressesAsked = static_cast<std::uint32_t>(after);
        reports.end(0, false);
        QVERIFY(reports.isAvailable());
        const QVariantMap last = reports.blocks().last().toMap();
        const QVariantMap line = last.value("lines").toList().value(0).toMap();
        QCOMPARE(line.value("label") == "已询问" ? line.value("value").toString() : QString(), asked);
        QVERIFY(reports.text().contains(asked));
    }

    void ignoresCountsOfEarlierSearches_data()
    {
        // before, after: the library's counters at the start and the end of a search by addresses; text: of
        // all blocks, without the advice on obstacles
        const auto row = dataTable<QList<Address>, QList<Address>, QString>({"before", "after", "text"});
        const QString asked = "\n按地址搜索\n已询问: 3 个地址\n有应答: 1 个地址\n";
        const QList<Address> responded = {
            {.sent = 4, .received = 6, .leaving = 1, .unreadable = 2, .found = 5},
            {.interface = "eth1", .obstacles = {SearchObstacle::NoResponse}, .sent = 4},
            {.interface = "eth2", .obstacles = {SearchObstacle::InterfaceDown}}};
        row("nothing went to groups", responded, responded,
            "eth0\n地址: 192.0.2.5/24\n\neth1\n地址: 192.0.2.5/24\n"
            "\neth2\n地址: 192.0.2.5/24\n! 网卡已停用\n" +
                asked);
        row("messages arrived", {{.sent = 4, .received = 6, .leaving = 1, .found = 5}},
            {{.sent = 4, .received = 9, .leaving = 3, .found = 6}},
            "eth0\n地址: 192.0.2.5/24\n已收到: 3 条消息\n找到: 1 台设备\n"
            "未采用: 设备离开网络的通知 2 条\n" +
                asked);
        row("another address since, which groups cannot be reached from", responded,
            {{.address = "198.51.100.5",
              .obstacles = {SearchObstacle::SendFailed, SearchObstacle::NoMulticast}}},
            "eth0\n地址: 198.51.100.5/24\n" + asked);
    }

    void ignoresCountsOfEarlierSearches()
    {
        QFETCH(QList<Address>, before);
        QFETCH(QList<Address>, after);
        QFETCH(QString, text);
        const auto net = std::make_shared<ReportingLibrary>();
        SearchReports reports(net);
        net->m_report = reportOf(before);
        net->m_report.foreignDevices = 2;
        reports.begin(true, {});
        reports.end(5, false);
        QVERIFY(reports.text().contains("其他网段"));
        reports.begin(false, "192.0.2.0 - 192.0.2.2");
        net->m_report = reportOf(after);
        net->m_report.foreignDevices = 2;
        net->m_report.addressesAsked = 3;
        net->m_report.addressesResponding = 1;
        reports.end(1, false);
        QString shown = reports.text().section("\n\n", 1); // without the time and the summary
        shown.remove("  在操作系统的网络设置中启用它。\n");
        QCOMPARE(shown, text);
    }

    void comparesSearchesOfTheSameNetworks()
    {
        SearchReports reports(nullptr);
        const auto missing = [&reports](bool localSegment, const QString &range, int devices,
                                        bool isStopped) {
            reports.begin(localSegment, range);
            reports.end(devices, isStopped);
            return reports.missing();
        };
        QCOMPARE(missing(true, "", 5, false), 0);
        QVERIFY(!reports.isIncomplete());
        QCOMPARE(missing(true, "", 2, true), 0); // the search was stopped
        QVERIFY(reports.isIncomplete());
        QCOMPARE(missing(true, "", 3, false), 2);
        QVERIFY(!reports.isIncomplete());
        reports.dismiss();
        QCOMPARE(reports.missing(), 0);
        QCOMPARE(missing(true, "", 3, false), 0);
        QCOMPARE(missing(false, "a - b", 1, false), 0); // other networks
        QCOMPARE(missing(true, "", 1, false), 0);
        QVERIFY(!reports.isAvailable());
    }
};

QTEST_GUILESS_MAIN(TestSearchReports)
#include "tst_searchreports.moc"
