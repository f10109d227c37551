// Requests to simulated devices that nobody is logged in to: searches.
#include "tests/sdk/demo/testsite.h"

#include <future>
#include <latch>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace sdk;
using namespace sdk::demo;

class SearchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addressSearchReachesTheListedOnly()
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

        const SearchByAddressesRequest request = requestFor(
            {u"192.168.2.1"_s, u"0.0.0.0"_s, u"FD00:0::4"_s, u"192.168.1.99"_s, u"nonsense"_s, u""_s});
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

    void oneAddressIsAskedUntilItAnswers()
    {
        SceneDevice twin = camera(3, 200ms);
        twin.address = camera(2, 0ms).address;
        SceneDevice secondOnly = camera(4, 0ms);
        secondOnly.knowsFirstSearch = false;
        const TestSite site({camera(1, 0ms), camera(2, 100ms), twin, secondOnly});
        Collector collector;
        const auto ask = [&](const QStringList &addresses) {
            site.net->NetSearchDeviceByIp(requestFor(addresses), &Collector::handle, &collector, 3000ms);
        };
        std::future<void> search = std::async(std::launch::async, ask, QStringList{twin.address});
        QVERIFY(site.clock->waitForWaiters(2)); // the caller and the answer
        site.clock->advance(100ms);
        search.get();
        QCOMPARE(collector.lines(), QStringList{u"02:1a:c5:00:00:02 192.168.1.2"_s}); // the first to answer
        QCOMPARE(collector.handles(), QSet<std::int64_t>{0});

        ask({secondOnly.address});
        QCOMPARE(collector.count(), 2);

        std::future<void> unanswered = std::async(std::launch::async, ask, QStringList{u"192.168.1.99"_s});
        QVERIFY(site.clock->waitForWaiters(1));
        site.clock->advance(3000ms);
        unanswered.get();
        ask({u"192.168.1.1"_s, u"192.168.1.4"_s});
        QCOMPARE(lastError(*site.net), DemoError::WrongCount);
        QCOMPARE(collector.count(), 2);
        QCOMPARE(site.site->requests().of(u"NetSearchDeviceByIp"_s).size(), 4);
    }

    void stopWaitsForRunningHandlers()
    {
        const TestSite site(threeCameras);
        std::latch handlerRuns(1);
        std::latch handlerMayEnd(1);
        Collector collector;
        collector.onAnswer = [&] {
            handlerRuns.count_down();
            handlerMayEnd.wait();
        };
        const std::int64_t handle = site.net->NetStartSearchDevices(parameterFor(collector), 4ms);
        site.clock->advance(100ms);
        handlerRuns.wait();
        QVERIFY(site.clock->waitForWaiters(2));
        std::future<bool> stop =
            std::async(std::launch::async, [&] { return site.net->NetStopSearchDevices(handle); });
        QVERIFY(site.clock->waitForWaiters(0)); // the other threads of the search have gone
        QCOMPARE(stop.wait_for(0ms), std::future_status::timeout);
        handlerMayEnd.count_down();
        QVERIFY(stop.get());
        site.clock->advance(1h);
        QCOMPARE(collector.count(), 1);
        QVERIFY(!site.net->NetStopSearchDevices(handle));
        QCOMPARE(lastError(*site.net), DemoError::UnknownHandle);
    }
};

QTEST_GUILESS_MAIN(SearchTest)
#include "tst_demosearch.moc"
