// How the streams of simulated channels end.
#include "sdk/demo/demosite.h"
#include "sdk/demo/steppableclock.h"
#include "sdk/demo/streams/livestream.h"
#include "sdk/netlibrary.h"
#include "sdk/streamblocks.h"
#include "tests/datatable.h"
#include "tests/sdk/realdatawatcher.h"

#include <QJsonArray>

#include <functional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace sdk;
using namespace sdk::demo;

namespace {

/// A camera with small frames, which are encoded quickly.
SceneDevice smallCamera()
{
    SceneDevice device;
    device.mac = u"02:1a:c5:00:00:01"_s;
    device.address = u"192.168.1.1"_s;
    device.port = 8800;
    device.type = u"IPC"_s;
    device.accounts = {{u"admin"_s, u"Pass-1"_s}};
    device.channels.resize(1);
    const QJsonObject small = {{u"sizes"_s, QJsonArray{u"352*288"_s}}};
    device.capabilities = {{u"encode"_s, QJsonObject{{u"main"_s, small}, {u"sub"_s, small}}}};
    return device;
}

/// A site with a session to a small camera, which sends frames when the clock is advanced.
struct StreamSite
{
    StreamSite()
    {
        Scene scene;
        scene.devices = {smallCamera()};
        site = DemoSite::create(scene, clock);
        net = site->libraries().net;
        net->NetInit();
        LoginDeviceInformation device = {};
        std::int32_t error = 0;
        session = net->NetLogin("192.168.1.1", 8800, "admin", "Pass-1", 0, nullptr, device, error);
    }

    std::int64_t watch(RealDataWatcher &watcher) const
    {
        const std::int64_t handle = net->NetStartRealStream(session, 0, 0, LiveStreamKind::Main);
        return handle != 0 && net->NetSetRealDataCallback(handle, &RealDataWatcher::take, &watcher, 1)
                   ? handle
                   : 0;
    }

    /// Advances the clock to the next frame.
    void step() const
    {
        QVERIFY(clock->waitForWaiters(1));
        clock->advance(40ms);
        QVERIFY(clock->waitForWaiters(1));
    }

    std::shared_ptr<SteppableClock> clock = std::make_shared<SteppableClock>();
    std::shared_ptr<DemoSite> site;
    std::shared_ptr<NetLibrary> net;
    std::int64_t session = 0;
};

} // namespace

class StreamsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void streamsEndWithTheirSource_data()
    {
        using End = std::function<void(const StreamSite &)>;
        // reason: 0: the caller has ended the stream
        const auto row = dataTable<End, bool, int>({"end", "handleStays", "reason"});
        const auto lost = static_cast<int>(StreamEndReason::ConnectionLost);
        const auto byDevice = static_cast<int>(StreamEndReason::EndedByDevice);
        const QString mac = smallCamera().mac;
        const auto faultRow = [&](const char *title, const FaultSetting &fault, StreamEndReason reason) {
            row(
                title, [mac, fault](const StreamSite &site) { site.site->setFault(mac, fault); }, true,
                static_cast<int>(reason));
        };
        faultRow("no response", {Fault::NoAnswer}, StreamEndReason::ConnectionLost);
        faultRow("not initialised", {Fault::NotInitialised}, StreamEndReason::Refused);
        faultRow("dropped", {Fault::DropsStreamAfter, 2}, StreamEndReason::EndedByDevice);
        row(
            "removal", [mac](const StreamSite &site) { site.site->removeDevice(mac); }, true, lost);
        row(
            "logout", [](const StreamSite &site) { site.net->NetLogout(site.session); }, false, 0);
        row(
            "reboot", [](const StreamSite &site) { site.net->NetRebootDevice(site.session, 1s); }, true,
            lost);
        const auto reset = [](const StreamSite &site) {
            const ResetSystemInput input = {sizeof(input)};
            ResetSystemOutput output = {sizeof(output)};
            site.net->NetResetSystem(site.session, input, output, 1s);
        };
        row("reset", reset, true, lost);
        const auto unplug = [mac](const StreamSite &site) {
            site.site->changeDevice(mac,
                                    [](auto &device, const auto &) { device.channels[0].connected = false; });
        };
        row("unplugged", unplug, true, byDevice);
    }

    void streamsEndWithTheirSource()
    {
        QFETCH(std::function<void(const StreamSite &)>, end);
        QFETCH(bool, handleStays);
        QFETCH(int, reason);
        const StreamSite site;
        RealDataWatcher watcher;
        const std::int64_t handle = site.watch(watcher);
        const qsizetype first = watcher.bytes().size();
        site.step();
        const QByteArray before = watcher.bytes();
        QVERIFY(before.size() > first);
        end(site);
        site.clock->advance(30s);                       // longer than a reboot
        QVERIFY(!site.clock->waitForWaiters(1, 100ms)); // no thread waits for the clock
        QVERIFY(watcher.bytes() == before && !watcher.hasLateData());
        QCOMPARE(watcher.ends(), reason == 0 ? QList<int>() : QList<int>{reason});
        QCOMPARE(site.net->NetStopRealStream(handle), handleStays);
        QVERIFY(!site.net->NetStopRealStream(handle));
    }

    void anEndWithoutAHandlerIsReportedToTheNextOne()
    {
        LiveStream stream(7, {});
        RealDataWatcher first;
        RealDataWatcher second;
        stream.setHandler(&RealDataWatcher::take, &first);
        stream.setHandler(nullptr, nullptr);
        stream.end(StreamEndReason::ConnectionLost);
        stream.setHandler(&RealDataWatcher::take, &second);
        stream.setHandler(&RealDataWatcher::take, &second);
        QCOMPARE(first.ends(), QList<int>());
        QCOMPARE(second.ends(), QList{static_cast<int>(StreamEndReason::ConnectionLost)});
    }
};

QTEST_GUILESS_MAIN(StreamsTest)
#include "tst_demostreams.moc"
