// Searches for devices of a simulated site on real sockets. Runs inside the site's network (scripts/lab).
#include "sdk/onvif/discovery/discoverysockets.h"
#include "sdk/onvif/onvifnetlibrary.h"
#include "sdk/searchreportblocks.h"
#include "tests/sdk/onvif/searchresponses.h"

#include <QNetworkInterface>
#include <QProcess>
#include <QScopeGuard>
#include <QTcpServer>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace sdk;
using namespace std::chrono_literals;

namespace {

/// A discovery message of a device: "Hello" or "Bye" with its content.
std::string discoveryMessage(const std::string &name, const std::string &content)
{
    return R"(<Envelope xmlns="http://www.w3.org/2003/05/soap-envelope"><Body><q:)" + name +
           R"( xmlns:q="http://schemas.xmlsoap.org/ws/2005/04/discovery">)" + content + "</q:" + name +
           "></Body></Envelope>";
}

QString interfaceOf(const QHostAddress &address)
{
    const QList<QNetworkInterface> interfaces = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface &interface : interfaces) {
        const QList<QNetworkAddressEntry> entries = interface.addressEntries();
        if (std::any_of(entries.cbegin(), entries.cend(),
                        [&address](const QNetworkAddressEntry &entry) { return entry.ip() == address; }))
            return interface.name();
    }
    return {};
}

} // namespace

class OnvifSearchesTest : public QObject
{
    Q_OBJECT
private:
    onvif::OnvifNetLibrary m_net;

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_net.NetInit()); }

    void cleanupTestCase() { m_net.NetCleanup(); }

    void findsTheDevicesOfTheNetwork()
    {
        SearchResponses responses;
        SearchParameter parameter{};
        parameter.size = sizeof(parameter);
        parameter.handler = &SearchResponses::take;
        parameter.user = &responses;
        const std::int64_t search = m_net.NetStartSearchDevices(parameter, 4ms);
        QVERIFY(search > 0);
        QTRY_VERIFY_WITH_TIMEOUT(responses.has(u"192.168.1.101"_s) && responses.has(u"192.168.1.108"_s) &&
                                     responses.has(u"192.168.1.120"_s),
                                 10000);
        QVERIFY(m_net.NetStopSearchDevices(search));
        QVERIFY(!m_net.NetStopSearchDevices(search));
        const SearchDeviceInformation camera = responses.device(u"192.168.1.101"_s);
        QCOMPARE(SearchResponses::textOf(camera.mac), u"02:1a:c5:00:40:25"_s);
        QCOMPARE(SearchResponses::textOf(camera.deviceName), u"大门"_s);
        QCOMPARE(SearchResponses::textOf(camera.detailModel), u"B-2230-IR"_s);
        QCOMPARE(camera.port, 80);
        QVERIFY(initialisationBits(camera.initialisationState) == InitialisationBits::Initialised);
        const SearchDeviceInformation factoryNew = responses.device(u"192.168.1.108"_s);
        QVERIFY(initialisationBits(factoryNew.initialisationState) == InitialisationBits::Uninitialised);
    }

    /// Messages that this host sends to itself represent those of other hosts.
    void reportsWhatASearchReceived()
    {
        SearchResponses responses;
        const SearchParameter parameter = {
            .size = sizeof(parameter), .reserved = 0, .handler = &SearchResponses::take, .user = &responses};
        const std::int64_t search = m_net.NetStartSearchDevices(parameter, 4ms);
        QVERIFY(search > 0);
        QTRY_VERIFY_WITH_TIMEOUT(responses.has(u"192.168.1.101"_s), 10000);
        onvif::DiscoverySockets sockets;
        QVERIFY(sockets.open() > 0);
        const QList<std::string> messages = {
            "no message at all", discoveryMessage("Hello", R"(<q:Types xmlns:w="u">w:Printer</q:Types>)"),
            discoveryMessage("Hello", ""), // this host does not respond at the default port
            discoveryMessage("Hello", "<q:XAddrs>http://192.168.1.101:81/x</q:XAddrs>"),
            discoveryMessage("Bye", "")};
        for (const std::string &message : messages)
            sockets.sendToGroups(message);

        SearchReport report{};
        report.size = sizeof(report);
        const auto discarded = [&report](SearchDiscard reason) {
            return report.interfaces[0].discarded[static_cast<std::size_t>(reason)];
        };
        const auto isComplete = [&] {
            return m_net.NetGetSearchReport(report) && discarded(SearchDiscard::NoService) == 1 &&
                   discarded(SearchDiscard::ForeignAddress) == 1 && discarded(SearchDiscard::Leaving) == 1;
        };
        QTRY_VERIFY_WITH_TIMEOUT(isComplete(), 10000);
        QVERIFY(m_net.NetStopSearchDevices(search));
        QVERIFY(!responses.has(u"192.168.1.250"_s));
        QVERIFY(m_net.NetGetSearchReport(report));
        QCOMPARE(discarded(SearchDiscard::Unreadable), 1U);
        QCOMPARE(discarded(SearchDiscard::OtherKind), 1U);
        const SearchInterfaceReport &interface = report.interfaces[0];
        QCOMPARE(SearchResponses::textOf(interface.address), u"192.168.1.250"_s);
        QCOMPARE(interface.prefixLength, 24);
        QVERIFY(interface.requestsSent >= 4 && interface.messagesReceived > interface.devicesFound);
        QVERIFY(interface.devicesFound > 0 && interface.obstacles == 0);
        QCOMPARE(report.addressesAsked, 0U);

        SearchByAddressesRequest request{};
        request.size = sizeof(request);
        request.count = 3;
        setBlockText(request.addresses[0], "192.168.1.101");
        setBlockText(request.addresses[1], "192.168.1.199");
        setBlockText(request.addresses[2], "203.0.113.1");
        m_net.NetSearchDevicesByIPs(request, &SearchResponses::take, &responses, "0.0.0.0", 3000ms);
        QVERIFY(m_net.NetGetSearchReport(report));
        QCOMPARE(report.addressesAsked, 3U);
        QCOMPARE(report.addressesResponding, 1U);
        QCOMPARE(report.addressesNoRoute, 1U);
        report.size = 1;
        QVERIFY(!m_net.NetGetSearchReport(report));
    }

    /// Factory-new devices have the same address. Each is listed, before the application ends its search,
    /// also if many accept a connection and do not respond.
    void listsDevicesThatShareAnAddress()
    {
        constexpr int addresses = 8;
        constexpr int devicesAtAddress = 30;
        QStringList own;
        const QString interface = interfaceOf(QHostAddress(u"192.168.1.250"_s));
        for (int number = 0; number < addresses; ++number) {
            own.append(u"192.168.1.%1"_s.arg(240 + number));
            QCOMPARE(QProcess::execute(u"ip"_s,
                                       {u"address"_s, u"add"_s, own.last() + u"/24"_s, u"dev"_s, interface}),
                     0);
        }
        const auto removal = qScopeGuard([&] {
            for (const QString &address : own)
                QProcess::execute(u"ip"_s, {u"address"_s, u"del"_s, address + u"/24"_s, u"dev"_s, interface});
        });
        QTcpServer silent;
        QVERIFY(silent.listen(QHostAddress::AnyIPv4, 81));

        SearchResponses responses;
        const SearchParameter parameter = {
            .size = sizeof(parameter), .reserved = 0, .handler = &SearchResponses::take, .user = &responses};
        const std::int64_t search = m_net.NetStartSearchDevices(parameter, 4ms);
        QVERIFY(search > 0);
        onvif::DiscoverySockets sockets;
        QVERIFY(sockets.open() > 0);
        QStringList uuids;
        const QString services = u"http://"_s + own.join(u":81/x http://"_s) + u":81/x"_s;
        for (int device = 0; device < devicesAtAddress; ++device) {
            uuids.append(u"5f5a69c2-e0ae-504f-829b-0000000000%1"_s.arg(10 + device));
            const QString content =
                uR"(<a:EndpointReference xmlns:a="http://schemas.xmlsoap.org/ws/2004/08/addressing">)"
                uR"(<a:Address>urn:uuid:%1</a:Address></a:EndpointReference><q:XAddrs>%2</q:XAddrs>)"_s;
            sockets.sendToGroups(
                discoveryMessage("Hello", content.arg(uuids.last(), services).toStdString()));
        }
        const auto areAllListed = [&] {
            return std::all_of(own.cbegin(), own.cend(),
                               [&](const QString &address) { return responses.uuidsAt(address) == uuids; });
        };
        QTRY_VERIFY_WITH_TIMEOUT(areAllListed(), 8000);
        QVERIFY(m_net.NetStopSearchDevices(search));
    }

    void searchesSingleAddresses()
    {
        QCOMPARE(SearchResponses::textOf(SearchResponses::found(m_net, u"192.168.1.103"_s).detailModel),
                 u"B-2812-Z4"_s);
        QVERIFY(SearchResponses::found(m_net, u"192.168.1.199"_s).mac[0] == '\0');
    }
};

QTEST_GUILESS_MAIN(OnvifSearchesTest)
#include "tst_onvifsearches.moc"
