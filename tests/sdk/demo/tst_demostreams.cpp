// How the streams of simulated channels end.
#include "sdk/streamblocks.h"
#include "tests/datatable.h"
#include "tests/sdk/demo/testsite.h"

#include <QJsonArray>

#include <atomic>
#include <functional>
#include <future>
#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace sdk;
using namespace sdk::demo;

namespace {

/// Keeps the data that it gets, on any thread.
class Watcher
{
public:
    static void handle(std::int64_t, std::uint32_t, const std::uint8_t *data, std::uint32_t size,
                       std::int64_t /*parameter*/, void *user)
    {
        auto *watcher = static_cast<Watcher *>(user);
        const std::lock_guard lock(watcher->m_mutex);
        watcher->m_bytes.append(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    }

    [[nodiscard]] QByteArray bytes() const
    {
        const std::lock_guard lock(m_mutex);
        return m_bytes;
    }

private:
    mutable std::mutex m_mutex;
    QByteArray m_bytes;
};

/// A camera whose streams are small, so that they are quickly encoded.
SceneDevice smallCamera(int channels)
{
    SceneDevice device = camera(1, 0ms);
    device.channels.resize(channels);
    const QJsonObject small = {{u"sizes"_s, QJsonArray{u"352*288"_s}}};
    device.capabilities = {{u"encode"_s, QJsonObject{{u"main"_s, small}, {u"sub"_s, small}}}};
    return device;
}

/// A site with a session to a small camera, whose pictures come by steps of the clock.
struct StreamSite : TestSite
{
    explicit StreamSite(const SceneDevice &device)
        : TestSite({device}), login(*net, device.address, device.port)
    {
    }

    std::int64_t watch(Watcher &watcher) const
    {
        const std::int64_t handle = net->NetStartRealStream(login.handle, 0, 0, LiveStreamKind::Main);
        return handle != 0 && net->NetSetRealDataCallback(handle, &Watcher::handle, &watcher, 1) ? handle : 0;
    }

    /// Lets the next picture come.
    void step() const
    {
        QVERIFY(clock->waitForWaiters(1));
        clock->advance(40ms);
        QVERIFY(clock->waitForWaiters(1));
    }

    Login login;
};

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

class StreamsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void streamsEndWithWhatTheyComeFrom_data()
    {
        using End = std::function<void(const StreamSite &)>;
        const auto row = dataTable<End, bool>({"end", "handleStays"});
        const QString mac = smallCamera(3).mac;
        const auto faultRow = [&](const char *title, const FaultSetting &fault) {
            row(
                title, [mac, fault](const StreamSite &site) { site.site->setFault(mac, fault); }, true);
        };
        faultRow("no answer", {Fault::NoAnswer});
        faultRow("not initialised", {Fault::NotInitialised});
        faultRow("dropped", {Fault::DropsStreamAfter, 2});
        row(
            "removal", [mac](const StreamSite &site) { site.site->removeDevice(mac); }, true);
        row(
            "logout", [](const StreamSite &site) { site.net->NetLogout(site.login.handle); }, false);
        row(
            "reboot", [](const StreamSite &site) { site.net->NetRebootDevice(site.login.handle, 1s); }, true);
        const auto reset = [](const StreamSite &site) {
            const ResetSystemInput input = {sizeof(input)};
            ResetSystemOutput output = {sizeof(output)};
            site.net->NetResetSystem(site.login.handle, input, output, 1s);
        };
        row("reset", reset, true);
        const auto unplug = [mac](const StreamSite &site) {
            site.site->changeDevice(mac,
                                    [](auto &device, const auto &) { device.channels[0].connected = false; });
        };
        row("unplugged", unplug, true);
    }

    void streamsEndWithWhatTheyComeFrom()
    {
        QFETCH(std::function<void(const StreamSite &)>, end);
        QFETCH(bool, handleStays);
        const StreamSite site(smallCamera(3));
        Watcher watcher;
        const std::int64_t handle = site.watch(watcher);
        const qsizetype first = watcher.bytes().size();
        site.step();
        const QByteArray before = watcher.bytes();
        QVERIFY(before.size() > first);
        end(site);
        site.clock->advance(30s);                       // beyond a reboot as well
        QVERIFY(!site.clock->waitForWaiters(1, 100ms)); // nothing runs any more
        QCOMPARE(watcher.bytes(), before);
        QCOMPARE(site.net->NetStopRealStream(handle), handleStays);
        QVERIFY(!site.net->NetStopRealStream(handle));
        QCOMPARE(lastError(*site.net), DemoError::UnknownHandle);
    }

    void handlersRunNoMoreAfterTheirEnd()
    {
        Scene scene;
        scene.devices = {smallCamera(3)};
        const auto site = DemoSite::create(scene, std::make_shared<SystemClock>());
        const std::shared_ptr<NetLibrary> net = site->libraries().net;
        net->NetInit();
        const Login login(*net, smallCamera(3).address, 8800);
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
};

QTEST_GUILESS_MAIN(StreamsTest)
#include "tst_demostreams.moc"
