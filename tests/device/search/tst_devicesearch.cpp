#include "device/dh/devicedh.h"
#include "device/registry/devicefactory.h"
#include "device/store/devicestore.h"
#include "device/store/ipv4address.h"
#include "sdk/demo/demosite.h"
#include "sdk/demo/steppableclock.h"
#include "sdk/netlibrary.h"
#include "sdk/searchreportblocks.h"
#include "tests/datatable.h"
#include "tests/device/searchresponses.h"

#include <QSignalSpy>
#include <QThread>

using namespace std::chrono_literals;

/// Searches by the factory on a simulated site with a stepped clock.
class TestDeviceSearch : public QObject
{
    Q_OBJECT
private:
    std::shared_ptr<sdk::demo::SteppableClock> m_clock;
    std::shared_ptr<sdk::demo::DemoSite> m_site;
    std::shared_ptr<DeviceStore> m_store;
    std::unique_ptr<CDeviceFactory> m_factory;
    bool m_localDomain = true;

    void openSite(const QString &scene)
    {
        m_factory.reset();
        m_clock = std::make_shared<sdk::demo::SteppableClock>();
        QString error;
        m_site = sdk::demo::DemoSite::open(scene, m_clock, &error);
        QVERIFY2(m_site, qPrintable(error));
        m_store = std::make_shared<DeviceStore>(m_clock);
        m_factory = std::make_unique<CDeviceFactory>(CDeviceFactory::BackEndCreators{
            {"dh", [this] {
                 return std::make_shared<CDeviceDH>(m_store, m_site->libraries(),
                                                    [this] { return SearchSettings{m_localDomain}; });
             }}});
    }

    /// Advances the clock until `spy` has `count` signals.
    void stepUntil(const QSignalSpy &spy, qsizetype count)
    {
        const QDeadlineTimer deadline(20s);
        while (spy.size() < count && !deadline.hasExpired()) {
            m_clock->advance(50ms);
            QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
            QThread::yieldCurrentThread();
        }
        QVERIFY2(spy.size() >= count, "the search did not end");
    }

    QStringList operations() const
    {
        QStringList names;
        for (const auto &request : m_site->requests().all()) {
            if (request.operation.startsWith("NetSt") || request.operation.startsWith("NetSearch"))
                names.append(request.operation);
        }
        return names;
    }

private Q_SLOTS:
    void init() { m_localDomain = true; }
    void cleanup() { m_factory.reset(); }

    void aLocalSearchSendsThreeRequestsAndStops()
    {
        openSite("office");
        QSignalSpy done(m_factory.get(), &CDeviceFactory::signalSearchDone);
        const std::int64_t start = m_clock->now();
        m_factory->startSearch("dh");
        stepUntil(done, 1);

        QCOMPARE(operations(),
                 QStringList({"NetStartSearchDevices", "NetStartSearchDevices", "NetStartSearchDevicesEx",
                              "NetStopSearchDevices", "NetStopSearchDevices", "NetStopSearchDevices"}));
        const auto requests = m_site->requests().of("NetStartSearchDevices");
        const auto second = m_site->requests().of("NetStartSearchDevicesEx");
        QVERIFY(requests.at(1).time - start >= 1000);
        QVERIFY(second.at(0).time - requests.at(1).time >= 1000);
        QVERIFY(m_site->requests().of("NetStopSearchDevices").at(0).time - second.at(0).time >= 3000);
    }

    void aStoppedSearchKeepsItsResults()
    {
        openSite("office");
        QSignalSpy done(m_factory.get(), &CDeviceFactory::signalSearchDone);
        QSignalSpy progress(m_factory.get(), &CDeviceFactory::signalSearchProgress);
        m_factory->setSearchByIPInfo("dh", 0xC0A80101, 0xC0A81101); // 17 segments
        m_factory->startSearch("dh");
        stepUntil(progress, 2);
        const int percent = progress.last().first().toInt();
        QVERIFY(percent > 0 && percent < 10);
        const qsizetype found = m_factory->filterData("dh", "nofilter").size();
        QVERIFY(found > 0);
        m_factory->stopSearch("dh");
        QTRY_COMPARE(done.size(), 1); // the clock is not advanced
        QVERIFY(m_factory->filterData("dh", "nofilter").size() >= found);
        QVERIFY(!operations().contains("NetSearchDevicesByIPs"));
        QCOMPARE(operations().count("NetStopSearchDevices"),
                 operations().count("NetStartSearchDevices") + operations().count("NetStartSearchDevicesEx"));

        m_factory->startSearch("dh"); // the stop does not affect the next search
        stepUntil(done, 2);
        QCOMPARE(progress.last().first().toInt(), 100);
    }

    void everyReachableDeviceGetsOneRow()
    {
        openSite("office");
        QSignalSpy done(m_factory.get(), &CDeviceFactory::signalSearchDone);
        QSignalSpy count(m_factory.get(), &CDeviceFactory::signalSearchCount);
        QSignalSpy added(m_factory.get(), &CDeviceFactory::signalAddDeviceToTable);
        m_factory->startSearch("dh");
        stepUntil(done, 1);

        QStringList ipv4;
        int others = 0;
        m_site->forEachDevice([&](const sdk::demo::SceneDevice &device) {
            if (device.inOtherSegment)
                return;
            const bool set = !device.isRemote && !device.address.isEmpty() && device.address != "0.0.0.0";
            if (set)
                ipv4.append(device.mac);
            others += (!device.ipv6.isEmpty() ? 1 : 0) + (device.address == "0.0.0.0" ? 1 : 0);
        });
        QStringList found;
        for (const QVariant &row : m_factory->filterData("dh", "nofilter"))
            found.append(row.toJsonObject().value("mac").toString());
        QCOMPARE(QSet<QString>(found.cbegin(), found.cend()), QSet<QString>(ipv4.cbegin(), ipv4.cend()));
        QCOMPARE(found.size(), ipv4.size());
        QCOMPARE(m_factory->filterDataIPV6("dh", "nofilter").size(), others);
        QVERIFY(m_factory->filterData("dh", "nofilter")
                    .value(0)
                    .toJsonObject()
                    .value("ipport")
                    .toString()
                    .startsWith("127.0.0.1:"));
        QCOMPARE(count.last().at(0).toInt(), int(ipv4.size()));
        QVERIFY(added.size() > 2); // at the start, during the responses and at the end

        sdk::SearchReport report{};
        report.size = sizeof(report);
        QVERIFY(m_site->libraries().net->NetGetSearchReport(report));
        QCOMPARE(report.interfaces[0].requestsSent, 3U);
        QVERIFY(report.interfaces[0].devicesFound >= static_cast<std::uint32_t>(ipv4.size()));
        QVERIFY(report.interfaces[0].messagesReceived > report.interfaces[0].devicesFound);
    }

    void aRangeIsSearchedOnceInBlocks()
    {
        m_localDomain = false;
        openSite("office");
        QSignalSpy done(m_factory.get(), &CDeviceFactory::signalSearchDone);
        m_factory->setSearchByIPInfo("dh", *ipv4Number(u"192.168.1.10"), *ipv4Number(u"192.168.3.20"));
        m_factory->startSearch("dh");
        stepUntil(done, 1);
        QCOMPARE(operations(), QStringList({"NetSearchDevicesByIPs", "NetSearchDevicesByIPsEx",
                                            "NetSearchDevicesByIPs", "NetSearchDevicesByIPsEx",
                                            "NetSearchDevicesByIPs", "NetSearchDevicesByIPsEx"}));
        const QJsonObject first = m_site->requests().of("NetSearchDevicesByIPs").at(0).request;
        QCOMPARE(first.value("wait").toInt(), 3000);
        bool foundOther = false;
        for (const QVariant &row : m_factory->filterData("dh", "nofilter"))
            foundOther |= row.toJsonObject().value("ipport").toString().startsWith("192.168.2.");
        QVERIFY(foundOther);
        sdk::SearchReport report{};
        report.size = sizeof(report);
        QVERIFY(m_site->libraries().net->NetGetSearchReport(report));
        QCOMPARE(report.addressesAsked,
                 246U + 256U + 21U); // counted once, although two requests are sent to each address
        QVERIFY(report.addressesResponding > 0 && report.addressesResponding < 30);

        m_site->requests().clear();
        m_factory->startSearch("dh");
        stepUntil(done, 2);
        QVERIFY(operations().isEmpty());
    }

    void aFloodedSearchReportsOmittedDevicesOnce()
    {
        openSite("factory");
        QSignalSpy done(m_factory.get(), &CDeviceFactory::signalSearchDone);
        QSignalSpy limited(m_factory.get(), &CDeviceFactory::signalSearchLimited);
        m_factory->startSearch("dh");
        QVERIFY(m_site->requests().waitFor("NetStartSearchDevices", 1)); // the list has been emptied
        for (int number = 0; number < 20'010; ++number)
            m_store->addResponse(searchResponse({.mac = numberedMac(number)}));
        stepUntil(done, 1);
        QCOMPARE(limited.size(), 1);
        QCOMPARE(limited.at(0).at(0).toInt(), 20'000);
        QVERIFY(limited.at(0).at(1).toInt() >= 10);
        m_factory->startSearch("dh");
        stepUntil(done, 2);
        QCOMPARE(limited.size(), 1);
    }

    void closingDuringASearchEndsCleanly_data()
    {
        const auto row = dataTable<bool>({"local"});
        row("local search", true);
        row("range search", false);
    }

    void closingDuringASearchEndsCleanly()
    {
        QFETCH(bool, local);
        m_localDomain = local;
        openSite("fleet:200");
        if (!local)
            m_factory->setSearchByIPInfo("dh", *ipv4Number(u"10.0.0.1"), *ipv4Number(u"10.0.16.1"));
        m_factory->startSearch("dh");
        QVERIFY(m_site->requests().waitFor(local ? "NetStartSearchDevices" : "NetSearchDevicesByIPs", 1));
        m_factory.reset(); // the clock is not advanced: no wait may block the end
    }
};

QTEST_GUILESS_MAIN(TestDeviceSearch)
#include "tst_devicesearch.moc"
