// Threads, endings, errors and the record of the simulated network library.
#include "sdk/demo/fleetgenerator.h"
#include "tests/sdk/demo/testsite.h"

#include <QJsonArray>

#include <atomic>
#include <future>
#include <latch>
#include <set>
#include <thread>
#include <vector>

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
    void cleanupEndsManySearches();
    void handlersCannotStopTheirSearch();
    void malformedRequestsFail_data();
    void malformedRequestsFail();
    void errorsAreKeptPerThreadAndLibrary();
    void librariesKeepTheSiteAlive();
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

void DemoNetLibraryTest::cleanupEndsManySearches()
{
    const TestSite site(FleetGenerator::generate(3000).devices);
    QStringList addresses;
    for (int place = 0; place < maximumSearchAddresses; ++place)
        addresses.append(site.site->devices().at(place).address);
    const SearchByAddressesRequest request = requestFor(addresses);
    Collector collector;
    std::vector<std::jthread> callers;
    constexpr int count = 4;
    callers.reserve(count);
    for (int caller = 0; caller < count; ++caller) {
        callers.emplace_back([&, caller] {
            const std::int64_t handle = site.net->NetStartSearchDevicesEx(parameterExFor(collector), 4ms);
            site.net->NetSearchDevicesByIPsEx(request, &Collector::handle, &collector, "0.0.0.0", 3000ms);
            if (caller % 2 == 0)
                site.net->NetStopSearchDevices(handle);
        });
    }
    QVERIFY(site.site->requests().waitFor(u"NetSearchDevicesByIPsEx"_s, count));
    site.clock->advance(1000ms);
    site.net->NetCleanup();
    const qsizetype answers = collector.count();
    site.clock->advance(1h);
    callers.clear();
    QCOMPARE(collector.count(), answers);
}

void DemoNetLibraryTest::handlersCannotStopTheirSearch()
{
    const TestSite site(threeCameras);
    Collector collector;
    std::atomic<std::int64_t> handle = 0;
    std::atomic<int> refused = 0;
    collector.onAnswer = [&] {
        site.net->NetCleanup();
        if (!site.net->NetStopSearchDevices(handle) && lastError(*site.net) == DemoError::InsideHandler)
            ++refused;
    };
    QTest::ignoreMessage(QtWarningMsg,
                         "NetCleanup was called from a handler and would wait for itself: ignored");
    handle = site.net->NetStartSearchDevices(parameterFor(collector), 4ms);
    site.clock->advance(100ms);
    QVERIFY(site.net->NetStopSearchDevices(handle));
    QCOMPARE(refused.load(), 1);
}

void DemoNetLibraryTest::malformedRequestsFail_data()
{
    QTest::addColumn<quint32>("surplus"); // on the size of every block
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("hasHandler");
    QTest::addColumn<DemoError>("localError");
    QTest::addColumn<DemoError>("addressError");

    QTest::newRow("size too large") << 1u << 1 << true << DemoError::WrongSize << DemoError::WrongSize;
    QTest::newRow("size too small") << ~0u << 1 << true << DemoError::WrongSize << DemoError::WrongSize;
    QTest::newRow("no handler") << 0u << 1 << false << DemoError::NoHandler << DemoError::NoHandler;
    QTest::newRow("negative count") << 0u << -1 << true << DemoError::None << DemoError::WrongCount;
    QTest::newRow("count too large") << 0u << 257 << true << DemoError::None << DemoError::WrongCount;
    QTest::newRow("full list") << 0u << 256 << true << DemoError::None << DemoError::None;
}

void DemoNetLibraryTest::malformedRequestsFail()
{
    QFETCH(quint32, surplus);
    QFETCH(int, count);
    QFETCH(bool, hasHandler);
    QFETCH(DemoError, localError);
    QFETCH(DemoError, addressError);

    Collector collector;
    const TestSite site(threeCameras); // ends before the collector of its running searches
    const SearchAnswerHandler handler = hasHandler ? &Collector::handle : nullptr;
    const auto compare = [&site](std::int64_t result, DemoError error) {
        QCOMPARE(result != 0, error == DemoError::None);
        if (error != DemoError::None)
            QCOMPARE(lastError(*site.net), error);
    };
    SearchParameter parameter = parameterFor(collector);
    parameter.size += surplus;
    parameter.handler = handler;
    compare(site.net->NetStartSearchDevices(parameter, 4ms), localError);
    SearchParameterEx parameterEx = parameterExFor(collector);
    parameterEx.size += surplus;
    parameterEx.handler = handler;
    compare(site.net->NetStartSearchDevicesEx(parameterEx, 4ms), localError);

    SearchByAddressesRequest request = requestFor({u"192.168.1.1"_s});
    request.size += surplus;
    request.count = count;
    compare(site.net->NetSearchDevicesByIPs(request, handler, &collector, "0.0.0.0", 0ms), addressError);
    compare(site.net->NetSearchDevicesByIPsEx(request, handler, &collector, "0.0.0.0", 0ms), addressError);
    QCOMPARE(site.site->requests().all().size(), 5); // these and NetInit: malformed ones are kept too
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

void DemoNetLibraryTest::librariesKeepTheSiteAlive()
{
    Collector collector;
    TestSite site(threeCameras);
    QVERIFY(site.net->NetStartSearchDevices(parameterFor(collector), 4ms) != 0);
    const std::weak_ptr<DemoSite> watched = site.site;
    site.site.reset();
    QVERIFY(!watched.expired());
    site.net.reset(); // in the middle of a search
    QVERIFY(watched.expired());
    site.clock->advance(1h);
    QCOMPARE(collector.count(), 0);
}

QTEST_GUILESS_MAIN(DemoNetLibraryTest)
#include "tst_demonetlibrary.moc"
