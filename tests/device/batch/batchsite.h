// Batches on a simulated site of four cameras.
#pragma once

#include "device/batch/batches.h"
#include "tests/device/dh/configsite.h"

#include <QSignalSpy>
#include <QTest>

#include <memory>

/// Base class of batch tests. A test opens the site in init() and closes it in cleanup(). The clock of the
/// site advances by itself, see ConfigSite. Main thread.
class BatchSite
{
protected:
    /// Creates the site with the cameras 192.168.1.1 to 192.168.1.4 and searches for them. Batches process
    /// two devices at the same time. The recorded requests are empty then.
    void open()
    {
        m_devices.clear();
        for (int number = 1; number <= 4; ++number) {
            m_devices.append(configDevice(number, "IPC", 1));
            m_devices.last().mask = "255.255.255.0";
            m_devices.last().gateway = "192.168.1.1";
        }
        m_site = std::make_unique<ConfigSite>(m_devices);
        m_batches = std::make_unique<Batches>(*m_site->factory, *m_site->engine, [] { return 2; });
        m_batches->keepFailedIn(m_site->store);
        QVERIFY(search());
        m_site->site->requests().clear();
    }

    /// Stops running batches and destroys the site.
    void close()
    {
        m_site->net->passwordGate.reset();
        m_site->engine->end();
        m_batches.reset();
        m_site.reset();
    }

    /// The key of the row of a device (its MAC); `index` is from 0.
    [[nodiscard]] QString identityOf(int index) const { return m_devices.at(index).mac; }
    /// New addresses for the four devices, in their order.
    static QStringList wantedAddresses()
    {
        return {"192.168.1.51", "192.168.1.52", "192.168.1.53", "192.168.1.54"};
    }
    /// The MACs of the devices, in their order.
    [[nodiscard]] QStringList macs() const
    {
        QStringList macs;
        for (const sdk::demo::SceneDevice &device : m_devices)
            macs.append(device.mac);
        return macs;
    }
    /// Searches for the devices. Returns false if the search does not end within 30 s.
    [[nodiscard]] bool search() const
    {
        QSignalSpy found(m_site->factory.get(), &CDeviceFactory::signalSearchDone);
        m_site->factory->startSearch("dh");
        return QTest::qWaitFor([&] { return !found.isEmpty(); }, 30000);
    }
    /// The MACs of the devices that received requests of an operation of the network library, such as
    /// "NetRebootDevice"; one for each request, the oldest first.
    [[nodiscard]] QStringList askedMacs(const QString &operation) const
    {
        QStringList asked;
        for (const sdk::demo::RecordedRequest &request : m_site->site->requests().of(operation))
            asked.append(request.mac);
        return asked;
    }

    QList<sdk::demo::SceneDevice> m_devices; ///< as they were created
    std::unique_ptr<ConfigSite> m_site;
    std::unique_ptr<Batches> m_batches;
};
