// Adding devices in batches: the lines of a device list, and favourites.
#include "device/batch/addingbatches.h"
#include "device/dh/lists/encryptedlist.h"
#include "sdk/demo/demop2pagentlibrary.h"
#include "tests/datatable.h"
#include "tests/device/dh/factorysite.h"
#include "tests/files/filecontents.h"

#include <QElapsedTimer>
#include <QSemaphore>
#include <QTemporaryDir>

namespace {

const QString camera = QStringLiteral("02:1a:c5:00:00:01");
const QString quietCamera = QStringLiteral("02:1a:c5:00:00:02");
const QString recorder = QStringLiteral("02:1a:c5:00:00:03");
const QString recorderId = QStringLiteral("OV7QK2M4");
constexpr int networkFailure = 5;

/// A list whose steps each wait at a gate.
class MadeUpList : public CDeviceBase
{
public:
    MadeUpList() : CDeviceBase(nullptr) {}

    int lines = 0;
    int devices = 0; ///< number of devices; the lines belong to them in turn
    QSemaphore gate; ///< each resource lets one step end
    std::mutex mutex;
    QHash<QString, QList<int>> done; ///< completed lines by device, in order

    ImportPlan importPlan(const QString &, const QString &) override
    {
        ImportPlan plan;
        for (int line = 1; line <= lines; ++line) {
            const QString device = QStringLiteral("10.0.0.%1").arg(line % devices);
            plan.lines.push_back({.position = {.number = line, .address = device},
                                  .device = device,
                                  .title = {},
                                  .login = {},
                                  .step = [this, line, device](const StepControl &) {
                                      gate.acquire();
                                      const std::lock_guard lock(mutex);
                                      done[device].append(line);
                                      return StepOutcome();
                                  }});
        }
        return plan;
    }
};

/// A factory that opens such lists.
struct MadeUpSite
{
    explicit MadeUpSite(int maximumParallel) : m_maximumParallel(maximumParallel) {}
    ~MadeUpSite()
    {
        list->gate.release(100'000);
        m_engine.end();
    }
    MadeUpSite(const MadeUpSite &) = delete;
    MadeUpSite &operator=(const MadeUpSite &) = delete;

    std::shared_ptr<MadeUpList> list = std::make_shared<MadeUpList>();
    CDeviceFactory factory{{{QStringLiteral("dh"), [this] {
                                 return list;
                             }}}};

private:
    int m_maximumParallel;
    BatchEngine m_engine{nullptr};

public:
    Batches batches{factory, m_engine, [this] {
                        return m_maximumParallel;
                    }};
    AddingBatches adding{factory, batches};
};

/// "line code" of each line that failed.
QStringList failuresOf(const AddingBatches &adding, Batch *batch)
{
    QStringList failures;
    for (const QVariant &failure : adding.importFailures(batch))
        failures.append(valuesOf(failure.toMap(), "line code"));
    return failures;
}

} // namespace

class TestAddingBatches : public QObject, private FactorySite
{
    Q_OBJECT
    std::unique_ptr<BatchEngine> m_engine;
    std::unique_ptr<Batches> m_batches;
    std::unique_ptr<AddingBatches> m_adding;
    QTemporaryDir m_folder;

    void import(const QByteArray &lines) const
    {
        const QString path = m_folder.filePath("list.csv");
        QVERIFY(writeFile(path,
                          "添加模式,IP地址/域名/注册ID/设备序列号,设备端口,用户名,密码,设备名称\n" + lines));
        m_adding->importList("Import", QUrl::fromLocalFile(path).toString());
        QVERIFY(m_factory->busyState()->refusal(BusyState::Delete).contains("Import"));
        QTRY_VERIFY(m_batches->current() && !m_batches->isRunning());
    }
    [[nodiscard]] qsizetype loginsOf(const QString &mac) const
    {
        const QList<sdk::demo::RecordedRequest> logins = m_site->requests().of("NetLogin");
        return std::count_if(logins.begin(), logins.end(),
                             [&mac](const sdk::demo::RecordedRequest &login) { return login.mac == mac; });
    }

private Q_SLOTS:
    void init()
    {
        QList<sdk::demo::SceneDevice> devices = {sceneDevice(camera, "192.168.1.10", "IPC"),
                                                 sceneDevice(quietCamera, "192.168.1.11", "IPC"),
                                                 sceneDevice(recorder, "10.9.9.9", "NVR")};
        devices[2].isRemote = true;
        devices[2].p2pId = recorderId;
        devices[2].port = 8800;
        openSite(devices);
        m_engine = std::make_unique<BatchEngine>(nullptr);
        m_batches = std::make_unique<Batches>(*m_factory, *m_engine, [] { return 4; });
        m_adding = std::make_unique<AddingBatches>(*m_factory, *m_batches);
    }

    void cleanup()
    {
        m_engine->end();
        m_adding.reset();
        m_batches.reset();
        closeSite();
        m_engine.reset();
    }

    void everyLineGetsItsResult()
    {
        m_site->setFault(quietCamera, {.fault = sdk::demo::Fault::NoAnswer});
        import(
            "IpAddress,192.168.1.10,37777,admin,wrong,\n" // 2
            "IpAddress,192.168.1.10,37777,admin,wrong,\n" // 3: not sent, because the account could be locked
            "IpAddress,192.168.1.10,37777,admin,secret1,门\n" // 4
            "IpAddress,192.168.1.10,37777,admin,secret1,\n"   // 5
            "Register,192.168.1.10,37777,admin,secret1,\n"    // 6
            "IpAddress,192.168.1.11,37777,admin,secret1,\n"   // 7
            "P2P,OV7QK2M4,8800,admin,wrong,\n"                // 8
            "P2P,OV7QK2M4,8800,admin,secret1,\n"              // 9
            "P2P,UNKNOWN,8800,admin,secret1,\n");             // 10
        Batch *batch = m_batches->current();
        QCOMPARE(failuresOf(*m_adding, batch),
                 (QStringList{"2|2", "3|2", "5|13", "6|-1", "7|5", "8|2", "10|5"}));
        QCOMPARE(batch->report()->succeeded(), 2);
        QCOMPARE(batch->report()->failed(), 7);
        // Pages and other batches use the same key for the device.
        QCOMPARE(batch->entries().first().device.ipport, "192.168.1.10:37777");
        QCOMPARE(batch->entries().first().device.key, "192.168.1.10:37777");
        QCOMPARE(batch->entries().at(6).device.ipport, "OV7QK2M4:8800");
        QCOMPARE(loginsOf(camera), 2);
        QCOMPARE(row(camera).value("password").toString(), "secret1");
        const int port = row(recorder).value("ipport").toString().section(':', 1).toInt();
        QCOMPARE(m_site->portAgent().tunnel(m_factory->getP2PWebPort(port))->devicePort, 8080);

        // Only lines that may succeed later are retried.
        m_site->clearFault(quietCamera, sdk::demo::Fault::NoAnswer);
        const QSignalSpy listChanged(m_factory.get(), &CDeviceFactory::signalAddSingleDeviceToTable);
        Batch *again = m_batches->retry(batch);
        QVERIFY(again);
        QTRY_VERIFY(!again->isRunning());
        QCOMPARE(again->total(), 2);
        QCOMPARE(failuresOf(*m_adding, again), QStringList("10|5"));
        QVERIFY(!row(quietCamera).isEmpty());
        QCOMPARE(listChanged.size(), 1);

        import("IpAddress,192.168.1.11,37777,admin,secret1,\n");
        QTRY_VERIFY(m_batches->current() != again && !m_batches->isRunning());
        QCOMPARE(m_batches->current()->entries().first().device.ipport, "192.168.1.11:37777");
        QCOMPARE(m_batches->current()->entries().first().device.key, quietCamera);
    }

    void anInvalidListIsRefused()
    {
        const QSignalSpy refused(m_adding.get(), &AddingBatches::importRefused);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Failed to open file: .*/"));
        m_adding->importList("Import", m_folder.filePath("none.csv"));
        QTRY_COMPARE(refused.size(), 1);
        QVERIFY(!refused.at(0).at(1).toBool());
        QVERIFY(writeFile(m_folder.filePath("list.devlist"),
                          encryptedListOf({DeviceListLine()}, "grüne Türe 7")));
        m_adding->importList("Import", m_folder.filePath("list.devlist"), "grüne Türe 8");
        QTRY_COMPARE(refused.size(), 2);
        QVERIFY(refused.at(1).at(1).toBool()); // another passphrase may be the right one
        QVERIFY(!m_batches->current() && !m_factory->busyState()->areRowsInUse());
    }

    void theRestOfAStoppedListIsReported()
    {
        MadeUpSite site(1);
        site.list->lines = site.list->devices = 4;
        site.adding.importList("Import", "any");
        site.list->gate.release();
        QTRY_VERIFY(site.batches.current() && site.batches.current()->done() == 1);
        site.batches.current()->stop();
        site.list->gate.release();
        QTRY_VERIFY(!site.batches.isRunning());
        QCOMPARE(failuresOf(site.adding, site.batches.current()), (QStringList{"3|15", "4|15"}));
    }

    /// Regardless of the number of lines, the pages read the list once per second and once at the end.
    void aLongListDoesNotBlockTheWindow()
    {
        MadeUpSite site(8);
        site.list->lines = 20'000;
        site.list->devices = 5'000;
        site.list->gate.release(site.list->lines);
        const QSignalSpy listChanged(&site.factory, &CDeviceFactory::signalAddSingleDeviceToTable);
        QElapsedTimer time;
        time.start();
        site.adding.importList("Import", "any");
        QTRY_VERIFY_WITH_TIMEOUT(site.batches.current() && !site.batches.isRunning(), 60'000);
        QCOMPARE(site.batches.current()->report()->succeeded(), site.list->lines);
        QVERIFY(!listChanged.isEmpty());
        QCOMPARE_LE(listChanged.size(), 1 + time.elapsed() / 1000);
        // The lines of a device are run in order.
        for (const QList<int> &lines : std::as_const(site.list->done))
            QVERIFY(lines.size() == 4 && std::is_sorted(lines.begin(), lines.end()));
    }

    void favouritesAreAdded_data()
    {
        // message: a part of it
        const auto row = dataTable<int, QString, int, QString, int, QString>(
            {"mode", "address", "port", "password", "result", "message"});
        row("address", 0, "192.168.1.10", 37777, "secret1", 0, QString());
        row("wrong password", 0, "192.168.1.10", 37777, "wrong", 2, "密码错误");
        row("already listed", 0, "192.168.1.11", 37777, "wrong", 13, "设备已存在");
        row("ID", 1, "OV7QK2M4", 8800, "secret1", 0, QString());
        row("no such ID", 1, "UNKNOWN", 8800, "secret1", networkFailure, "没有取得通往该设备的本地端口");
    }

    void favouritesAreAdded()
    {
        QFETCH(int, mode);
        QFETCH(QString, address);
        QFETCH(int, port);
        QFETCH(QString, password);
        QFETCH(QString, message);
        QCOMPARE(m_factory->getLoginDevice("dh", "192.168.1.11", "admin", "secret1", "37777"), 0);
        QSignalSpy tried(m_adding.get(), &AddingBatches::tried);
        const QVariantMap device = {{"identity", "file"}, {"mode", mode},       {"address", address},
                                    {"port", port},       {"account", "admin"}, {"password", password}};
        QVERIFY(m_adding->addDevices("Favourites", {device}));
        QCOMPARE(m_adding->addDevices("Favourites", {device}), nullptr); // one at a time
        QTRY_VERIFY(!m_batches->isRunning());
        QCOMPARE(tried.size(), 1);
        const QVariantMap result = tried.first().first().toList().first().toMap();
        QCOMPARE(result.value("identity").toString(), "file");
        QTEST(result.value("result").toInt(), "result");
        QVERIFY(result.value("message").toString().contains(message));
        QCOMPARE(m_factory->filterData("dh", "nofilter").size(), result.value("result").toInt() == 0 ? 2 : 1);
    }
};

QTEST_GUILESS_MAIN(TestAddingBatches)
#include "tst_addingbatches.moc"
