// No operation of the factory is empty: each one that the scene can call is called on a simulated site and
// must bring about what its entry here says. One without an entry fails.
#include "device/devicefactory.h"
#include "device/devicestore.h"
#include "device/dh/devicedh.h"
#include "sdk/demo/demop2pagentlibrary.h"
#include "sdk/demo/demosite.h"
#include "sdk/demo/steppableclock.h"
#include "tests/device/dh/flowingclock.h"
#include "tests/device/dh/scenedevices.h"

#include <QFile>
#include <QJSEngine>
#include <QMetaMethod>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>

namespace {

const QString camera = QStringLiteral("02:1a:c5:00:00:01");
const QString recorder = QStringLiteral("02:1a:c5:00:00:02");
const QString newCamera = QStringLiteral("02:1a:c5:00:00:03");
const QString faraway = QStringLiteral("02:1a:c5:00:00:04"); // in another segment
const QString remote = QStringLiteral("02:1a:c5:00:00:05");  // behind a tunnel
const QString newest = QStringLiteral("02:1a:c5:00:00:06");  // speaks IPv6
const QString cameraAt = QStringLiteral("192.168.1.10:37777");
const QString recorderAt = QStringLiteral("192.168.1.11:37777");
const QString remoteId = QStringLiteral("OV7QK2M4");

sdk::demo::Scene scene()
{
    sdk::demo::Scene scene;
    scene.devices = {sceneDevice(camera, "192.168.1.10"),    sceneDevice(recorder, "192.168.1.11", "NVR"),
                     sceneDevice(newCamera, "192.168.1.12"), sceneDevice(faraway, "192.168.2.20"),
                     sceneDevice(remote, "10.9.9.9"),        sceneDevice(newest, "")};
    scene.devices[0].channels = {{"车库", true}};
    scene.devices[1].channels = {{"大门", false}, {"后门", false}};
    scene.devices[2].initialisation = sdk::InitialisationBits::Uninitialised;
    scene.devices[2].accounts.clear();
    scene.devices[3].inOtherSegment = true;
    scene.devices[4].isRemote = true;
    scene.devices[4].p2pId = remoteId;
    scene.devices[5].ipv6 = "fe80::6";
    return scene;
}

} // namespace

class TestFactoryOperations : public QObject
{
    Q_OBJECT
private:
    using Check = std::function<bool()>;

    std::shared_ptr<sdk::demo::DemoSite> m_site;
    std::unique_ptr<CDeviceFactory> m_factory;
    std::unique_ptr<FlowingClock> m_time;
    std::unique_ptr<QTemporaryDir> m_folder;
    QJSEngine m_engine;

    template<typename Signal>
    QList<QVariantList> told(Signal signal, const std::function<void()> &operation)
    {
        QSignalSpy spy(m_factory.get(), signal);
        operation();
        if (spy.isEmpty())
            spy.wait(20000);
        return spy;
    }

    bool search(const std::function<void()> &start)
    {
        return !told(&CDeviceFactory::signalSearchDone, start).isEmpty();
    }

    bool isListed(const QString &mac) const { return !m_factory->getDeviceDetail("dh", mac).isEmpty(); }
    QVariant detail(const QString &mac, const QString &key) const
    {
        return m_factory->getDeviceDetail("dh", mac).value(key);
    }
    qsizetype asked(const QString &operation) const { return m_site->requests().of(operation).size(); }
    bool login(const QString &ipport) const
    {
        return m_factory->findAndLoginDevice("dh", ipport, "admin", "secret1") == 0;
    }
    QVariant config(const QString &key) const { return m_factory->getConfigData("dh", key); }

    QString write(const QString &name, const QByteArray &text) const
    {
        QFile file(m_folder->filePath(name));
        return file.open(QFile::WriteOnly) && file.write(text) == text.size() ? file.fileName() : QString();
    }
    /// A list of devices of which none answers.
    QString listOfNobody(int devices) const
    {
        QByteArray text = "添加模式,IP地址/域名/注册ID/设备序列号,设备端口,用户名,密码,序列号\n";
        for (int device = 0; device < devices; ++device)
            text += "P2P,NOBODY" + QByteArray::number(device) + ",8800,admin,secret1,\n";
        return write("nobody.csv", text);
    }
    bool import(const QString &path) { return m_factory->importDevice("dh", path, m_engine.newObject()); }
    int tunnel() const { return m_factory->setAddDevice("dh", remoteId, "admin", "secret1", "8800", 0); }

    // Operations of upgrades, as they stand: the tab does not use them yet. They are to be held to what they
    // bring about, each of them, once they do.
    QMap<QString, Check> upgradeChecks()
    {
        return {
            {"setUpgradeFilePath",
             [this] {
                 m_factory->setUpgradeFilePath("dh", camera, "x");
                 return m_factory->getDeviceDetail("dh", camera).value("filepath").toString() == "x";
             }},
            {"startUpgrade",
             [this] {
                 m_factory->setUpgradeFilePath("dh", camera, m_folder->filePath("no such file"));
                 QSignalSpy ended(m_factory.get(), &CDeviceFactory::signalShowUpgradeFinishTip);
                 m_factory->startUpgrade("dh", {camera});
                 return ended.wait(10000) &&
                        m_factory->getDeviceDetail("dh", camera).value("upgraderes").toInt() > 0;
             }},
            {"startUpgradeByDocument",
             [this] {
                 m_factory->startUpgradeByDocument("dh", {});
                 return !m_factory->hasDeviceUpgrading();
             }},
            {"stopUpgrade",
             [this] {
                 m_factory->stopUpgrade("dh", camera); // which is not being upgraded
                 return !m_factory->hasDeviceUpgrading();
             }},
            {"openTemplate",
             [] {
                 return true;
             }}, // would open another program's window
            {"importUpgradeDocument",
             [this] {
                 return m_factory->importUpgradeDocument("dh", "no file").isEmpty() &&
                        !m_factory->importError("dh").isEmpty();
             }},
            {"hasDeviceUpgrading",
             [this] {
                 return !m_factory->hasDeviceUpgrading();
             }},
            {"upgradeDocumentResult",
             [this] {
                 return m_factory->upgradeDocumentResult("dh").isEmpty(); // none was run
             }},
            {"upgradeDocumentProgress",
             [this] {
                 return m_factory->upgradeDocumentProgress("dh").value("total") == 0; // none was run
             }},
            {"upgradeDocumentSuccesses",
             [this] {
                 return m_factory->upgradeDocumentSuccesses("dh") == 0;
             }},
            {"upgradesToRetry",
             [this] {
                 m_factory->updataDeviceInfo("dh", "upgraderes", 20, camera, {});
                 return m_factory->upgradesToRetry("dh") == QStringList(camera);
             }},
        };
    }

    QMap<QString, Check> searchChecks()
    {
        return {
            {"startSearch",
             [this] {
                 m_factory->setDeleteDevice("dh", camera, "IPV4");
                 return search([this] { m_factory->startSearch("dh"); }) && isListed(camera);
             }},
            {"setSearchByIPInfo",
             [this] {
                 constexpr quint32 address = 0xc0a80214; // 192.168.2.20
                 m_factory->setSearchByIPInfo("dh", address, address);
                 return search([this] { m_factory->startSearch("dh"); }) && isListed(faraway);
             }},
            {"filterData",
             [this] {
                 return m_factory->filterData("dh", "removeinit").size() == 1;
             }},
            {"filterDataIPV6",
             [this] {
                 return m_factory->filterDataIPV6("dh", "nofilter").size() == 1;
             }},
        };
    }

    QMap<QString, Check> rowChecks()
    {
        return {
            {"modifyIP",
             [this] {
                 m_factory->modifyIP("dh", camera, "192.168.1.99", "255.255.255.0", "192.168.1.1", false);
                 return detail(camera, "ipport").toString() == "192.168.1.99:37777";
             }},
            {"setDefaultAccount",
             [this] {
                 m_factory->setDefaultAccount("dh", "admin", "wrong");
                 return m_factory->readDeviceDetail("dh", cameraAt).value("loginResult").toInt() == 2;
             }},
            {"setInitAccount",
             [this] {
                 m_factory->setInitAccount("dh", newCamera, "admin", "Secret-12");
                 return m_factory->findAndLoginDevice("dh", "192.168.1.12:37777", "admin", "Secret-12") == 0;
             }},
            {"setAddDevice",
             [this] {
                 return m_site->portAgent().tunnel(tunnel()).has_value();
             }},
            {"setPluginPort",
             [this] {
                 m_factory->setPluginPort("dh", camera, 8800);
                 return detail(camera, "devp2pPort").toString() == "8800";
             }},
            {"setDeleteDevice",
             [this] {
                 return m_factory->setDeleteDevice("dh", camera, "IPV4"), !isListed(camera);
             }},
            {"setBatchDeleteDevice",
             [this] {
                 m_factory->setBatchDeleteDevice("dh", {{camera, true}, {recorder, true}}, "IPV4");
                 return !isListed(camera) && !isListed(recorder) && isListed(newCamera);
             }},
            {"getDeviceDetail",
             [this] {
                 return detail(camera, "submask").toString() == "255.255.255.0";
             }},
            {"getDeviceDetailString",
             [this] {
                 return m_factory->getDeviceDetailString("dh", camera).contains("255.255.255.0");
             }},
            {"getDeviceInfo",
             [this] {
                 return m_factory->getDeviceInfo("dh", cameraAt).value("mac").toString() == camera;
             }},
            {"readDeviceDetail",
             [this] {
                 return m_factory->readDeviceDetail("dh", recorderAt).value("channelCount").toInt() == 2;
             }},
            {"getLoginDevice",
             [this] {
                 return m_factory->getLoginDevice("dh", "192.168.2.20", "admin", "secret1", "37777") == 0 &&
                        isListed(faraway);
             }},
            {"updataDeviceInfo",
             [this] {
                 return m_factory->updataDeviceInfo("dh", "url", "/a", camera, "") &&
                        detail(camera, "url").toString() == "/a";
             }},
            {"addP2PPort",
             [this] {
                 return m_factory->addP2PPort(1000, 2000), m_factory->getP2PWebPort(1000) == 2000;
             }},
            {"getP2PWebPort",
             [this] {
                 return m_factory->getP2PWebPort(1000) == 0;
             }},
            {"releaseP2PPort",
             [this] {
                 const int port = tunnel();
                 m_factory->releaseP2PPort(port);
                 return port > 0 && !m_site->portAgent().tunnel(port);
             }},
        };
    }

    QMap<QString, Check> listChecks()
    {
        return {
            {"exportDevice",
             [this] {
                 return m_factory->exportDevice("dh", m_folder->path(), {camera}, "a.csv") &&
                        QFile::exists(m_folder->filePath("a.csv"));
             }},
            {"importDevice",
             [this] {
                 const bool isWritten = m_factory->exportDevice("dh", m_folder->path(), {camera}, "a.csv");
                 m_factory->setDeleteDevice("dh", camera, "IPV4");
                 return isWritten && import(m_folder->filePath("a.csv")) && isListed(camera);
             }},
            {"importFailures",
             [this] {
                 return import(listOfNobody(2)) && m_factory->importFailures("dh").size() == 2;
             }},
            {"importError",
             [this] {
                 return !import("no file.csv") && !m_factory->importError("dh").isEmpty();
             }},
            {"stopImport",
             [this] {
                 constexpr int devices = 50;
                 const QSignalSpy progress(m_factory.get(), &CDeviceFactory::signalImportProgress);
                 connect(m_factory.get(), &CDeviceFactory::signalImportProgress, this,
                         [this] { m_factory->stopImport("dh"); });
                 const bool isImported = import(listOfNobody(devices));
                 const int last = progress.isEmpty() ? 0 : progress.last().first().toInt();
                 return isImported && last > 0 && last < devices;
             }},
        };
    }

    QMap<QString, Check> configurationChecks()
    {
        using Factory = CDeviceFactory;
        const auto inSession = [this](const QString &ipport, const Check &check) {
            return [this, ipport, check] {
                return login(ipport) && check();
            };
        };
        return {
            {"findAndLoginDevice",
             [this] {
                 return login(cameraAt) && config("sessionDevice").toString() == cameraAt;
             }},
            {"openSession",
             [this] {
                 QSignalSpy opened(m_factory.get(), &Factory::signalSessionOpened);
                 m_factory->openSession("dh", cameraAt, "admin", "secret1", false);
                 return opened.wait() && config("sessionDevice").toString() == cameraAt;
             }},
            {"stopOpeningSession",
             [this] {
                 m_factory->openSession("dh", cameraAt, "admin", "secret1", false);
                 const bool isAsked = m_site->requests().waitFor("NetLoginSecure", 1);
                 m_factory->stopOpeningSession("dh");
                 const auto isLoggedOut = [this] {
                     return m_site->requests().of("NetLogout").size() == 1;
                 };
                 return isAsked && QTest::qWaitFor(isLoggedOut) &&
                        config("sessionDevice").toString().isEmpty();
             }},
            {"checkSession", inSession(cameraAt,
                                       [this] {
                                           QSignalSpy checked(m_factory.get(),
                                                              &Factory::signalSessionChecked);
                                           m_factory->checkSession("dh");
                                           return checked.wait() && checked.first().first().toBool();
                                       })},
            {"getCameraConfig", inSession(cameraAt,
                                          [this] {
                                              m_factory->getCameraConfig("dh");
                                              return config("picture").toMap().value("support").toBool();
                                          })},
            {"getConfigData",
             inSession(recorderAt, [this] { return config("channelNum").toList().size() == 2; })},
            {"setConfigData", inSession(cameraAt,
                                        [this] {
                                            m_factory->setConfigData("dh", "channelName", "东门", "0");
                                            return m_factory->getConfigData("dh", "channelName", 0) == "东门";
                                        })},
            {"getEncodeCaps", inSession(cameraAt,
                                        [this] {
                                            m_factory->getEncodeCaps("dh");
                                            return !config("resolution").toStringList().isEmpty();
                                        })},
            {"getEncodeInfo", inSession(cameraAt,
                                        [this] {
                                            return told(&Factory::signalChangeEncodeChannel, [this] {
                                                       m_factory->getEncodeInfo("dh");
                                                   }).size() == 1;
                                        })},
            {"getVideoIn", inSession(cameraAt,
                                     [this] {
                                         return told(&Factory::signalChangeVideoType, [this] {
                                                    m_factory->getVideoIn("dh");
                                                }).size() == 1;
                                     })},
            {"getVideoInByChangeChannel",
             inSession(cameraAt,
                       [this] {
                           return told(&Factory::signalChangeVideoChannel, [this] {
                                      m_factory->getVideoInByChangeChannel("dh");
                                  }).size() == 1;
                       })},
            {"confirmConfigData", inSession(cameraAt,
                                            [this] {
                                                m_factory->getEncodeCaps("dh");
                                                return told(&Factory::signalConfirmEncodeConfig,
                                                            [this] { m_factory->confirmConfigData("dh"); }) ==
                                                           QList<QVariantList>({{QString()}}) &&
                                                       asked("NetSetItem") > 0;
                                            })},
            {"copyConfigToDevice", inSession(cameraAt,
                                             [this] {
                                                 m_factory->getEncodeCaps("dh");
                                                 return told(&Factory::signalRetToCopyConfig, [this] {
                                                            m_factory->copyConfigToDevice("dh", {cameraAt});
                                                        }) == QList<QVariantList>({{cameraAt, 0}});
                                             })},
            {"getDeviceChannelData", inSession(cameraAt,
                                               [this] {
                                                   return m_factory->getDeviceChannelData(
                                                              "dh", "channelNames", 0) ==
                                                          QVariantList({"车库"});
                                               })},
            {"systemConfig",
             [this] {
                 return told(&Factory::signalRetToSystemConfig,
                             [this] { m_factory->systemConfig("dh", "rebootDevice", {}, {cameraAt}); }) ==
                            QList<QVariantList>({{cameraAt, 0}}) &&
                        asked("NetRebootDevice") == 1;
             }},
            // No camera is connected to the recorder: that is what is told of each channel.
            {"snapPictureToFile",
             inSession(recorderAt,
                       [this] {
                           return told(&Factory::signalSnapPictureToFileAgain, [this] {
                                      m_factory->snapPictureToFile("dh", "againCapture", 1, recorderAt);
                                  }) == QList<QVariantList>({{1, QString(), "通道未连接"}});
                       })},
            {"startSnap", inSession(recorderAt,
                                    [this] {
                                        return told(&Factory::signalSnapPictureToFile, [this] {
                                                   m_factory->startSnap("dh", 0, recorderAt);
                                               }).value(0) == QVariantList({0, QString(), "通道未连接"});
                                    })},
        };
    }

    QMap<QString, Check> toolChecks()
    {
        return {
            {"getPassWordType",
             [this] {
                 return m_factory->getPassWordType("Abc-1234567") > m_factory->getPassWordType("a");
             }},
            {"getErrorName",
             [this] {
                 return m_factory->getErrorName(1) != m_factory->getErrorName(2);
             }},
            {"getDays",
             [this] {
                 return m_factory->getDays(12).size() == 31;
             }},
            {"exitProgram",
             [this] {
                 QTimer::singleShot(0, m_factory.get(), [this] { m_factory->exitProgram(); });
                 return QCoreApplication::exec() == 0;
             }},
        };
    }

    QMap<QString, Check> checks()
    {
        QMap<QString, Check> all = upgradeChecks();
        all.insert(searchChecks());
        all.insert(rowChecks());
        all.insert(listChecks());
        all.insert(configurationChecks());
        all.insert(toolChecks());
        return all;
    }

    /// What the scene can call.
    static QStringList operations()
    {
        QStringList names;
        const QMetaObject &meta = CDeviceFactory::staticMetaObject;
        for (int index = meta.methodOffset(); index < meta.methodCount(); ++index) {
            const QMetaMethod method = meta.method(index);
            const QString name = QString::fromLatin1(method.name());
            if (method.methodType() == QMetaMethod::Method && !names.contains(name))
                names.append(name);
        }
        return names;
    }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        const auto clock = std::make_shared<sdk::demo::SteppableClock>();
        m_site = sdk::demo::DemoSite::create(scene(), clock);
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
        m_factory->setDefaultAccount("dh", "admin", "secret1");
        QVERIFY(search([this] { m_factory->startSearch("dh"); }));
        QVERIFY(isListed(camera) && isListed(recorder) && isListed(newCamera));
        QVERIFY(!isListed(faraway));
        m_site->requests().clear();
    }

    void cleanup()
    {
        m_factory.reset();
        m_time.reset();
        m_site.reset();
    }

    void everyOperationDoesSomething_data()
    {
        QTest::addColumn<QString>("operation");
        for (const QString &operation : operations())
            QTest::newRow(qUtf8Printable(operation)) << operation;
    }

    void everyOperationDoesSomething()
    {
        QFETCH(const QString, operation);
        const Check check = checks().value(operation);
        QVERIFY2(check, "this operation is not held to anything");
        QVERIFY(check());
    }

    void nothingElseIsHeldToAnything()
    {
        QStringList expected = operations();
        expected.sort();
        QCOMPARE(QStringList(checks().keys()), expected);
    }
};

QTEST_GUILESS_MAIN(TestFactoryOperations)
#include "tst_factoryoperations.moc"
