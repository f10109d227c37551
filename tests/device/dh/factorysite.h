// A simulated site and the factory that uses it.
#pragma once

#include "device/dh/devicedh.h"
#include "device/registry/devicefactory.h"
#include "device/store/devicestore.h"
#include "sdk/demo/demosite.h"
#include "tests/device/dh/flowingclock.h"
#include "tests/device/dh/scenedevices.h"
#include "tests/values.h"

#include <QSignalSpy>
#include <QTest>

/// Base class of tests of the back end "dh". The clock of the site advances whenever a thread waits for it,
/// so that timeouts take no real time. Main thread.
class FactorySite
{
protected:
    /// Creates a site with these devices, and a factory on it. An earlier site is closed. Nothing is searched
    /// yet.
    void openSite(const QList<sdk::demo::SceneDevice> &devices)
    {
        sdk::demo::Scene scene;
        scene.devices = devices;
        closeSite();
        m_clock = std::make_shared<sdk::demo::SteppableClock>();
        m_site = sdk::demo::DemoSite::create(scene, m_clock);
        makeFactory();
    }
    /// The same with a built-in scene, such as "office".
    void openSite(const QString &sceneName)
    {
        closeSite();
        m_clock = std::make_shared<sdk::demo::SteppableClock>();
        m_site = sdk::demo::DemoSite::open(sceneName, m_clock, nullptr);
        makeFactory();
    }
    /// Destroys the factory while the clock runs, so that no wait blocks it.
    void closeSite()
    {
        m_factory.reset();
        m_time.reset();
    }

    /// Searches for devices and waits for the end. Fails the test after 20 s.
    void search() const
    {
        QSignalSpy done(m_factory.get(), &CDeviceFactory::signalSearchDone);
        m_factory->startSearch("dh");
        QVERIFY(done.wait(20000));
    }

    /// The IPv4 row of a device in the device list; empty if it is not listed.
    [[nodiscard]] QJsonObject row(const QString &mac) const
    {
        for (const QVariant &value : m_factory->filterData("dh", "nofilter")) {
            if (value.toJsonObject().value("mac").toString() == mac)
                return value.toJsonObject();
        }
        return {};
    }
    /// The number of recorded requests of an operation of the network library, such as "NetRebootDevice".
    [[nodiscard]] qsizetype asked(const char *operation) const
    {
        return m_site->requests().of(operation).size();
    }

    std::shared_ptr<sdk::demo::SteppableClock> m_clock;
    std::shared_ptr<sdk::demo::DemoSite> m_site;
    std::shared_ptr<DeviceStore> m_store;
    std::unique_ptr<CDeviceFactory> m_factory;
    std::unique_ptr<FlowingClock> m_time;
    AccountChoice::Stored m_storedAccounts; ///< of the next site: finds the stored account of a device

private:
    void makeFactory()
    {
        m_store = std::make_shared<DeviceStore>(m_clock);
        const auto backEnd = [this] {
            auto dh =
                std::make_shared<CDeviceDH>(m_store, m_site->libraries(), [] { return SearchSettings(); });
            dh->setStoredAccounts(m_storedAccounts);
            return dh;
        };
        m_factory = std::make_unique<CDeviceFactory>(
            CDeviceFactory::BackEndCreators{{"dh", backEnd}},
            CDeviceFactory::P2PAgent{m_site->libraries().p2pAgent, &CDeviceDH::agentMessage});
        m_time = std::make_unique<FlowingClock>(*m_clock);
    }
};
