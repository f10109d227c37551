// How live streams of simulated channels are refused, end, and keep their promises to handlers.
#include "sdk/demo/demop2pagentlibrary.h"
#include "tests/sdk/demo/streamreader.h"
#include "tests/sdk/demo/streamsite.h"

#include <atomic>
#include <future>
#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace sdk;
using namespace sdk::demo;

namespace {

constexpr std::int32_t notConnected = 2; // channel of threeChannels()

SceneDevice threeChannels()
{
    SceneDevice device = smallCamera(3);
    device.channels[notConnected].connected = false;
    return device;
}

/// Says whether a handler ran that had been promised not to run.
struct PromiseWatcher
{
    static void handle(std::int64_t, std::uint32_t, const std::uint8_t *, std::uint32_t, std::int64_t,
                       void *user)
    {
        auto *watcher = static_cast<PromiseWatcher *>(user);
        if (!watcher->mayRun)
            watcher->wasBroken = true;
        ++watcher->calls;
        watcher->calls.notify_all();
        std::this_thread::yield();
        if (!watcher->mayRun)
            watcher->wasBroken = true;
    }

    std::atomic<bool> mayRun = false;
    std::atomic<bool> wasBroken = false;
    std::atomic<int> calls = 0;
};

} // namespace

class StreamEndsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void devicesThatAreAwayOrNewStreamNothing()
    {
        const StreamSite site(threeChannels());
        QCOMPARE(site.net->NetStartRealStream(site.login.handle + 1, 0, 0, LiveStreamKind::Main), 0);
        QCOMPARE(lastError(*site.net), DemoError::UnknownHandle);
        site.site->setFault(threeChannels().mac, {Fault::NotInitialised});
        QCOMPARE(site.net->NetStartRealStream(site.login.handle, 0, 0, LiveStreamKind::Main), 0);
        QCOMPARE(netError(*site.net), NetError::NotSupported);

        site.site->setFault(threeChannels().mac, {Fault::NoAnswer});
        auto error = std::async(std::launch::async, [&site] {
            site.net->NetStartRealStream(site.login.handle, 0, 0, LiveStreamKind::Main);
            return netError(*site.net);
        });
        QVERIFY(site.clock->waitForWaiters(1));
        site.clock->advance(5s);
        QCOMPARE(error.get(), NetError::NetworkFailure);
    }

    void streamsEndWithWhatTheyComeFrom_data()
    {
        using End = std::function<void(const StreamSite &)>;
        QTest::addColumn<End>("end");
        QTest::addColumn<bool>("handleStays");
        const QString mac = threeChannels().mac;
        const auto change = [mac](const std::function<void(SceneDevice &)> &changed) {
            return [mac, changed](const StreamSite &site) {
                site.site->changeDevice(
                    mac, [&](SceneDevice &device, const QList<SceneDevice> &) { changed(device); });
            };
        };
        QTest::newRow("reboot") << End([](const StreamSite &site) {
            QVERIFY(site.net->NetRebootDevice(site.login.handle, 1s));
        }) << true;
        QTest::newRow("reset") << End([](const StreamSite &site) {
            const ResetSystemInput input = {sizeof(input)};
            ResetSystemOutput output = {sizeof(output)};
            QVERIFY(site.net->NetResetSystem(site.login.handle, input, output, 1s));
        }) << true;
        QTest::newRow("removal") << End([mac](const StreamSite &site) { site.site->removeDevice(mac); })
                                 << true;
        QTest::newRow("no answer") << End([mac](const StreamSite &site) {
            site.site->setFault(mac, {Fault::NoAnswer});
        }) << true;
        QTest::newRow("not initialised")
            << End([mac](const StreamSite &site) { site.site->setFault(mac, {Fault::NotInitialised}); })
            << true;
        QTest::newRow("unplugged") << End(change([](SceneDevice &device) {
            device.channels[0].connected = false;
        })) << true;
        QTest::newRow("dropped") << End([mac](const StreamSite &site) {
            site.site->setFault(mac, {Fault::DropsStreamAfter, 2});
        }) << true;
        QTest::newRow("logout") << End([](const StreamSite &site) {
            QVERIFY(site.net->NetLogout(site.login.handle));
        }) << false;
    }

    void streamsEndWithWhatTheyComeFrom()
    {
        QFETCH(std::function<void(const StreamSite &)>, end);
        QFETCH(bool, handleStays);
        const StreamSite site(threeChannels());
        Watcher watcher;
        const std::int64_t handle = site.watch(watcher);
        site.step(1);
        const QByteArray before = watcher.bytes();
        QCOMPARE(decodedStreams(before).value(0).pictures.size(), 2);
        end(site);
        site.clock->advance(30s);                       // beyond a reboot as well
        QVERIFY(!site.clock->waitForWaiters(1, 100ms)); // nothing runs any more
        QCOMPARE(watcher.bytes(), before);
        QCOMPARE(site.net->NetStopRealStream(handle), handleStays);
        QVERIFY(!site.net->NetStopRealStream(handle));
        QCOMPARE(lastError(*site.net), DemoError::UnknownHandle);
    }

    void aSessionTakesOnlyItsOwnStreamsAlong()
    {
        const StreamSite site(threeChannels());
        const Login other(*site.net, threeChannels().address, 8800);
        Watcher staying;
        Watcher leaving;
        QVERIFY(site.watch(staying) != 0);
        const std::int64_t handle = site.net->NetStartRealStream(other.handle, 0, 0, LiveStreamKind::Main);
        QVERIFY(site.net->NetSetRealDataCallback(handle, &Watcher::handle, &leaving, 1));
        site.step(2);
        QVERIFY(site.net->NetLogout(other.handle));
        const qsizetype left = leaving.size();
        QVERIFY(left > 0);
        site.step(2);
        QCOMPARE(leaving.size(), left);
        QCOMPARE(decodedStreams(staying.bytes()).value(0).pictures.size(), 5);
    }

    void lateStreamsBeginLate()
    {
        SceneDevice device = threeChannels();
        device.faults = {{Fault::FirstPictureLate, 200}};
        const StreamSite site(device);
        Watcher watcher;
        QVERIFY(site.watch(watcher) != 0);
        site.step(4);
        QCOMPARE(watcher.size(), 0);
        site.step(2);
        QCOMPARE(decodedStreams(watcher.bytes()).value(0).pictures.size(), 2);
    }

    void aLongPauseIsNotMadeUpFor()
    {
        const StreamSite site(threeChannels());
        Watcher watcher;
        QVERIFY(site.watch(watcher) != 0);
        site.step(1);
        site.clock->advance(1h);
        site.step(1);
        const DecodedStream stream = decodedStreams(watcher.bytes()).value(0);
        QVERIFY2(stream.pictures.size() < 10, qPrintable(QString::number(stream.pictures.size())));
        QVERIFY(stream.pictures.last().time >= 3600000);
    }

    void handlersCanBeExchanged()
    {
        const StreamSite site(threeChannels());
        Watcher first;
        Watcher second;
        Watcher third;
        const std::int64_t handle = site.watch(first);
        site.step(3);
        QVERIFY(site.net->NetSetRealDataCallback(handle, &Watcher::handle, &second, 1));
        site.step(3);
        QVERIFY(site.net->NetSetRealDataCallback(handle, nullptr, nullptr, 1));
        site.clock->advance(pictureTime);
        QVERIFY(!site.clock->waitForWaiters(1, 100ms)); // nothing runs while nobody watches
        QVERIFY(site.net->NetSetRealDataCallback(handle, &Watcher::handle, &third, 1));
        QVERIFY(third.waitForMore(0));
        site.step(2);
        // One that follows on another goes on, one that follows on none begins.
        QCOMPARE(decodedStreams(second.bytes()).size(), 0);
        QCOMPARE(decodedStreams(first.bytes() + second.bytes()).value(0).pictures.size(), 7);
        QCOMPARE(decodedStreams(third.bytes()).value(0).pictures.size(), 3);
    }

    void handlersRunNoMoreAfterTheirEnd()
    {
        Scene scene;
        scene.devices = {threeChannels()};
        const auto site = DemoSite::create(scene, std::make_shared<SystemClock>());
        const std::shared_ptr<NetLibrary> net = site->libraries().net;
        net->NetInit();
        const Login login(*net, threeChannels().address, 8800);
        // Two threads, each starting and stopping on its own; they share the source.
        const auto startAndStop = [&](int rounds) {
            PromiseWatcher watcher;
            for (int round = 0; round < rounds; ++round) {
                const std::int64_t handle = net->NetStartRealStream(login.handle, 0, 0, LiveStreamKind::Main);
                watcher.mayRun = true;
                const int before = watcher.calls;
                net->NetSetRealDataCallback(handle, &PromiseWatcher::handle, &watcher, 1);
                if (round % 3 != 0)
                    watcher.calls.wait(before);
                if (round % 2 == 0)
                    net->NetSetRealDataCallback(handle, nullptr, nullptr, 1);
                else
                    net->NetStopRealStream(handle);
                watcher.mayRun = false;
                net->NetStopRealStream(handle);
            }
            return !watcher.wasBroken && watcher.calls > 0;
        };
        constexpr int rounds = 25;
        auto other = std::async(std::launch::async, startAndStop, rounds);
        QVERIFY(startAndStop(rounds));
        QVERIFY(other.get());
        QCOMPARE(site->requests().of(u"NetStartRealStream"_s).size(), 2 * rounds);

        PromiseWatcher last;
        last.mayRun = true;
        const std::int64_t handle = net->NetStartRealStream(login.handle, 1, 0, LiveStreamKind::Sub);
        QVERIFY(net->NetSetRealDataCallback(handle, &PromiseWatcher::handle, &last, 1));
        last.calls.wait(0);
        net->NetCleanup();
        last.mayRun = false;
        QVERIFY(!net->NetStopRealStream(handle));
        QCOMPARE(net->NetStartRealStream(login.handle, 0, 0, LiveStreamKind::Main), 0);
        QVERIFY(!last.wasBroken);
    }

    void channelStatesAreThoseOfTheScene()
    {
        const StreamSite site(threeChannels());
        ChannelStates states = {sizeof(states), 0, {}};
        QVERIFY(site.net->NetQueryChannelStates(site.login.handle, states, 1s));
        QCOMPARE(states.count, 3U);
        QCOMPARE(states.states[1].channel, 1);
        QCOMPARE(states.states[1].connection, ChannelConnection::Connected);
        QCOMPARE(states.states[2].connection, ChannelConnection::NotConnected);
        QCOMPARE(site.site->requests().of(u"NetQueryChannelStates"_s).value(0).mac, threeChannels().mac);

        SceneDevice device = threeChannels();
        device.channels.resize(1100);
        site.site->setDevice(device);
        QVERIFY(site.net->NetQueryChannelStates(site.login.handle, states, 1s));
        QCOMPARE(states.count, 1024U);
        device.channels.clear(); // one that it does not tell of
        site.site->setDevice(device);
        QVERIFY(site.net->NetQueryChannelStates(site.login.handle, states, 1s));
        QCOMPARE(states.count, 1U);

        states.size = 8;
        QVERIFY(!site.net->NetQueryChannelStates(site.login.handle, states, 1s));
        QCOMPARE(lastError(*site.net), DemoError::WrongSize);
        states.size = sizeof(states);
        site.site->setFault(device.mac, {Fault::RefusesChannelStates});
        QVERIFY(!site.net->NetQueryChannelStates(site.login.handle, states, 1s));
        QCOMPARE(netError(*site.net), NetError::NotSupported);
        QCOMPARE(states.count, 1U);
    }
};

QTEST_GUILESS_MAIN(StreamEndsTest)
#include "tst_demostreamends.moc"
