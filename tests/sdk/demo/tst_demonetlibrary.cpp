// Threads, endings, errors and the record of the simulated network library.
#include "sdk/demo/fleetgenerator.h"
#include "tests/sdk/demo/testsite.h"

#include <future>
#include <latch>
#include <set>
#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace sdk;
using namespace sdk::demo;

class DemoNetLibraryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersComeOnSeveralThreadsAtOnce();
    void stopWaitsForRunningHandlers();
    void cleanupEndsAddressSearch();
    void errorsAreKeptPerThreadAndLibrary();
};

void DemoNetLibraryTest::answersComeOnSeveralThreadsAtOnce()
{
    // Handlers wait for each other: they would stay stuck if they came one after another.
    constexpr int threads = 4;
    const TestSite site({camera(1, 5ms), camera(2, 5ms), camera(3, 5ms), camera(4, 5ms)});
    std::latch everyHandlerRuns(threads);
    std::mutex mutex;
    std::set<std::thread::id> ids;
    Collector collector;
    collector.onAnswer = [&] {
        everyHandlerRuns.arrive_and_wait();
        const std::lock_guard lock(mutex);
        ids.insert(std::this_thread::get_id());
    };
    site.search(collector, 5ms);
    QCOMPARE(collector.count(), threads);
    QCOMPARE(ids.size(), static_cast<std::size_t>(threads));
    QVERIFY(!ids.contains(std::this_thread::get_id()));
}

void DemoNetLibraryTest::stopWaitsForRunningHandlers()
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

void DemoNetLibraryTest::cleanupEndsAddressSearch()
{
    const TestSite site(threeCameras);
    Collector collector;
    const SearchByAddressesRequest request = requestFor({u"192.168.1.1"_s, u"192.168.1.2"_s});
    const auto searchAddresses = [&] {
        return site.net->NetSearchDevicesByIPs(request, &Collector::handle, &collector, "0.0.0.0", 3000ms);
    };
    std::future<bool> search = std::async(std::launch::async, searchAddresses);
    QVERIFY(site.clock->waitForWaiters(3));
    site.net->NetCleanup();
    QVERIFY(site.clock->waitForWaiters(0));
    QVERIFY(search.get());
    site.clock->advance(1h);
    QCOMPARE(collector.count(), 0);

    QVERIFY(!searchAddresses());
    QCOMPARE(lastError(*site.net), DemoError::NotPrepared);
    QVERIFY(site.net->NetInit());
    QCOMPARE(site.found(100ms).size(), 1);
}

void DemoNetLibraryTest::errorsAreKeptPerThreadAndLibrary()
{
    const TestSite site(threeCameras);
    const std::shared_ptr<DemoSite> otherSite = DemoSite::create(Scene(), site.clock);
    const std::shared_ptr<NetLibrary> other = otherSite->libraries().net;
    QVERIFY(!site.net->NetStopSearchDevices(77));
    std::async(std::launch::async, [&] {
        QCOMPARE(lastError(*site.net), DemoError::None);
        Collector collector;
        QCOMPARE(other->NetStartSearchDevices(parameterFor(collector), 4ms), 0);
        QCOMPARE(lastError(*other), DemoError::NotPrepared);
        QCOMPARE(lastError(*site.net), DemoError::None);
    }).get();
    QCOMPARE(lastError(*site.net), DemoError::UnknownHandle);
    QCOMPARE(lastError(*other), DemoError::None);
    QVERIFY(site.net->NetInit()); // success leaves it
    QCOMPARE(lastError(*site.net), DemoError::UnknownHandle);
}

QTEST_GUILESS_MAIN(DemoNetLibraryTest)
#include "tst_demonetlibrary.moc"
