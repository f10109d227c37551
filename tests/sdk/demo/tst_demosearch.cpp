// What searches find on a simulated site.
#include "sdk/demo/fleetgenerator.h"
#include "tests/sdk/demo/testsite.h"

#include <QStringDecoder>

#include <future>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace sdk;
using namespace sdk::demo;

class SearchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void foundDevicesDependOnTheClockAlone();
    void secondKindReachesEveryDevice();
    void addressSearchReachesTheListedOnly();
    void addressSearchBlocksAndDropsLateAnswers();
    void faultsActAtRunTime();
    void faultyTextsFillTheirFields();
};

void SearchTest::foundDevicesDependOnTheClockAlone()
{
    const TestSite site(FleetGenerator::generate(2000).devices);
    qsizetype expected = 0;
    site.site->visitDevices([&expected](const SceneDevice &device) {
        expected += device.knowsFirstSearch && device.latency <= 1000ms ? 1 : 0;
    });
    QVERIFY(expected > 100);
    QCOMPARE(site.found(1000ms).size(), expected);
    QCOMPARE(site.found(0ms).size(), 0);
}

void SearchTest::secondKindReachesEveryDevice()
{
    SceneDevice secondOnly = camera(1, 0ms);
    secondOnly.knowsFirstSearch = false;
    SceneDevice elsewhere = camera(2, 0ms);
    elsewhere.inOtherSegment = true;
    const TestSite site({secondOnly, elsewhere, camera(3, 0ms)});
    QCOMPARE(site.found(1ms), QStringList({u"02:1a:c5:00:00:03 192.168.1.3"_s}));

    Collector collector;
    SearchParameterEx parameter = parameterExFor(collector);
    setBlockText(parameter.localAddress, "192.168.1.77");
    const std::int64_t handle = site.net->NetStartSearchDevicesEx(parameter, 4ms);
    site.clock->advance(1ms);
    QVERIFY(site.net->NetStopSearchDevices(handle));
    QCOMPARE(collector.lines(),
             QStringList({u"02:1a:c5:00:00:01 192.168.1.1"_s, u"02:1a:c5:00:00:03 192.168.1.3"_s}));
    QCOMPARE(textOf(collector.answers().first().localAddress), u"192.168.1.77"_s);
}

void SearchTest::addressSearchReachesTheListedOnly()
{
    SceneDevice elsewhere = camera(1, 0ms);
    elsewhere.address = u"192.168.2.1"_s;
    elsewhere.inOtherSegment = true;
    SceneDevice twin = camera(2, 0ms);
    twin.address = u"192.168.2.1"_s;
    SceneDevice unset = camera(3, 0ms);
    unset.address = u"0.0.0.0"_s;
    SceneDevice dual = camera(4, 0ms);
    dual.ipv6 = u"fd00::4"_s;
    dual.knowsFirstSearch = false;
    const TestSite site({elsewhere, twin, unset, dual, camera(5, 0ms)});

    const SearchByAddressesRequest request =
        requestFor({u"192.168.2.1"_s, u"0.0.0.0"_s, u"FD00:0::4"_s, u"192.168.1.99"_s, u"nonsense"_s, u""_s});
    const QStringList twins = {u"02:1a:c5:00:00:01 192.168.2.1"_s, u"02:1a:c5:00:00:02 192.168.2.1"_s};
    Collector first;
    QVERIFY(site.net->NetSearchDevicesByIPs(request, &Collector::handle, &first, "0.0.0.0", 0ms));
    QCOMPARE(first.lines(), twins);
    QCOMPARE(first.handles(), QSet<std::int64_t>{0});
    QCOMPARE(textOf(first.answers().first().localAddress), u"192.168.1.250"_s);

    Collector second;
    QVERIFY(site.net->NetSearchDevicesByIPsEx(request, &Collector::handle, &second, nullptr, 0ms));
    QCOMPARE(second.lines(), twins + QStringList{u"02:1a:c5:00:00:04 fd00::4"_s});

    Collector none;
    QVERIFY(site.net->NetSearchDevicesByIPs(requestFor({}), &Collector::handle, &none, "", -5ms));
    QCOMPARE(none.count(), 0);
}

void SearchTest::addressSearchBlocksAndDropsLateAnswers()
{
    const TestSite site({camera(1, 100ms), camera(2, 3000ms), camera(3, 3001ms)});
    Collector collector;
    std::future<bool> search = std::async(std::launch::async, [&] {
        return site.net->NetSearchDevicesByIPs(
            requestFor({u"192.168.1.1"_s, u"192.168.1.2"_s, u"192.168.1.3"_s}), &Collector::handle,
            &collector, "0.0.0.0", 3000ms);
    });
    QVERIFY(site.clock->waitForWaiters(3)); // the caller and a thread for each of the two answers
    site.clock->advance(2999ms);
    QCOMPARE(search.wait_for(0ms), std::future_status::timeout);
    site.clock->advance(1ms);
    QVERIFY(search.get());
    site.clock->advance(1h);
    QCOMPARE(collector.lines(),
             QStringList({u"02:1a:c5:00:00:01 192.168.1.1"_s, u"02:1a:c5:00:00:02 192.168.1.2"_s}));
}

void SearchTest::faultsActAtRunTime()
{
    const TestSite site(threeCameras);
    const QString mac = u"02:1A:C5:00:00:01"_s;
    const QString line = u"02:1a:c5:00:00:01 192.168.1.1"_s;
    const auto count = [&site, &line](std::chrono::milliseconds duration) {
        return site.found(duration).count(line);
    };

    QVERIFY(site.site->setFault(mac, {Fault::NoAnswer}));
    QCOMPARE(count(10s), 0);
    QVERIFY(site.site->clearFault(mac, Fault::NoAnswer));
    QVERIFY(site.site->setFault(mac, {Fault::LateAnswer, 5000}));
    QVERIFY(site.site->setFault(mac, {Fault::LateAnswer, 2000})); // in place of the setting before
    QCOMPARE(count(2099ms), 0);
    QCOMPARE(count(2100ms), 1);
    QVERIFY(site.site->setFault(mac, {Fault::AnswerTwice}));
    QCOMPARE(count(2100ms), 2);
    QVERIFY(site.site->clearFault(mac, Fault::LateAnswer));
    QCOMPARE(count(100ms), 2);

    QVERIFY(site.site->setFault(mac, {Fault::NotInitialised}));
    Collector collector;
    site.search(collector, 100ms);
    QCOMPARE(initialisationBits(collector.answers().first().device.initialisationState),
             InitialisationBits::Uninitialised);
    QVERIFY(!site.site->setFault(u"02:1a:c5:00:00:99"_s, {Fault::NoAnswer}));
    QVERIFY(!site.site->clearFault(u"02:1a:c5:00:00:99"_s, Fault::NoAnswer));
}

void SearchTest::faultyTextsFillTheirFields()
{
    const auto textsOf = [](const SearchDeviceInformation &device) {
        const auto whole = [](const auto &field) {
            return QByteArray(field.data(), field.size());
        };
        return QList<QByteArray>{whole(device.deviceType), whole(device.detailModel),
                                 whole(device.deviceName), whole(device.softwareVersion),
                                 whole(device.serialNumber)};
    };
    SceneDevice overLong = camera(1, 0ms);
    overLong.serial.clear();
    overLong.faults = {{Fault::OverLongTexts}};
    SceneDevice odd = camera(2, 0ms);
    odd.faults = {{Fault::OddBytes}};
    const TestSite site({overLong, odd});
    Collector collector;
    site.search(collector, 1ms);
    QCOMPARE(collector.lines(), // what identifies a device stays whole
             QStringList({u"02:1a:c5:00:00:01 192.168.1.1"_s, u"02:1a:c5:00:00:02 192.168.1.2"_s}));
    for (const SearchAnswer &answer : collector.answers()) {
        const bool isOverLong = textOf(answer.device.mac) == overLong.mac;
        for (const QByteArray &field : textsOf(answer.device)) {
            QCOMPARE(field.contains('\0'), !isOverLong);
            const QByteArray text = field.left(field.indexOf('\0'));
            QStringDecoder decoder(QStringDecoder::Utf8);
            const QString decoded = decoder(text);
            QCOMPARE(decoder.hasError() && decoded.contains(u'\n') && decoded.contains(u'<'), !isOverLong);
        }
    }
}

QTEST_GUILESS_MAIN(SearchTest)
#include "tst_demosearch.moc"
