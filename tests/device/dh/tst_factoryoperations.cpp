// Operations of the factory that need more than one of its parts: a search, tunnels, an import that is
// stopped.
#include "device/devicefactory.h"
#include "device/devicestore.h"
#include "device/dh/devicedh.h"
#include "sdk/demo/demop2pagentlibrary.h"
#include "sdk/demo/demosite.h"
#include "tests/device/dh/flowingclock.h"
#include "tests/device/dh/scenedevices.h"

#include <QFile>
#include <QJSEngine>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

class TestFactoryOperations : public QObject
{
    Q_OBJECT
private:
    const QString m_camera = QStringLiteral("02:1a:c5:00:00:01");
    const QString m_remoteId = QStringLiteral("OV7QK2M4");
    std::shared_ptr<sdk::demo::DemoSite> m_site;
    std::unique_ptr<CDeviceFactory> m_factory;
    std::unique_ptr<FlowingClock> m_time;

    int tunnel() const { return m_factory->setAddDevice("dh", m_remoteId, "admin", "secret1", "37777", 0); }

private Q_SLOTS:
    void init()
    {
        sdk::demo::Scene scene;
        scene.devices = {sceneDevice(m_camera, "192.168.1.10"), sceneDevice("02:1a:c5:00:00:05", "10.9.9.9")};
        scene.devices[1].isRemote = true;
        scene.devices[1].p2pId = m_remoteId;
        const auto clock = std::make_shared<sdk::demo::SteppableClock>();
        m_site = sdk::demo::DemoSite::create(scene, clock);
        const auto store = std::make_shared<DeviceStore>(clock);
        m_factory = std::make_unique<CDeviceFactory>(
            CDeviceFactory::BackEndCreators{{"dh",
                                             [this, store] {
                                                 return std::make_shared<CDeviceDH>(
                                                     store, m_site->libraries(),
                                                     [] { return SearchSettings(); });
                                             }}},
            CDeviceFactory::P2PAgent{m_site->libraries().p2pAgent, &CDeviceDH::agentMessage});
        m_time = std::make_unique<FlowingClock>(*clock);
    }

    void cleanup()
    {
        m_factory.reset();
        m_time.reset();
        m_site.reset();
    }

    void tunnelsAreOpenedPairedAndReleased()
    {
        const int port = tunnel();
        QVERIFY(port > 0 && m_site->portAgent().tunnel(port));
        QCOMPARE(m_factory->getP2PWebPort(port), 0);
        m_factory->addP2PPort(port, 2000);
        QCOMPARE(m_factory->getP2PWebPort(port), 2000);
        m_factory->releaseP2PPort(port);
        QVERIFY(!m_site->portAgent().tunnel(port));
    }

    void theDevicesOwnPortIsKept()
    {
        QCOMPARE(m_factory->getLoginDevice("dh", "192.168.1.10", "admin", "secret1", "37777"), 0);
        m_factory->setPluginPort("dh", m_camera, 8800);
        QCOMPARE(m_factory->getDeviceDetail("dh", m_camera).value("devp2pPort").toString(), "8800");
    }

    void anImportThatIsStoppedEndsEarly()
    {
        constexpr int devices = 50;
        const QTemporaryDir folder;
        QFile file(folder.filePath("nobody.csv"));
        QVERIFY(file.open(QFile::WriteOnly));
        file.write("添加模式,IP地址/域名/注册ID/设备序列号,设备端口,用户名,密码,序列号\n");
        for (int device = 0; device < devices; ++device)
            file.write("P2P,NOBODY" + QByteArray::number(device) + ",8800,admin,secret1,\n");
        file.close();
        const QSignalSpy progress(m_factory.get(), &CDeviceFactory::signalImportProgress);
        connect(m_factory.get(), &CDeviceFactory::signalImportProgress, this,
                [this] { m_factory->stopImport("dh"); });
        QJSEngine engine;
        QVERIFY(m_factory->importDevice("dh", file.fileName(), engine.newObject()));
        const int last = progress.isEmpty() ? 0 : progress.last().first().toInt();
        QVERIFY(last > 0 && last < devices);
    }

    void theProgramEndsWithSuccess()
    {
        QMetaObject::invokeMethod(
            this, [this] { m_factory->exitProgram(); }, Qt::QueuedConnection);
        QCOMPARE(QCoreApplication::exec(), 0);
    }
};

QTEST_GUILESS_MAIN(TestFactoryOperations)
#include "tst_factoryoperations.moc"
