#include "device/batch/batchengine.h"
#include "device/dh/devicedh.h"
#include "device/registry/devicefactory.h"
#include "device/registry/devicerow.h"
#include "device/registry/devicestore.h"
#include "device/work/livesession.h"
#include "media/videoitem.h"
#include "sdk/clock.h"
#include "sdk/demo/demosite.h"
#include "sdk/ffmpeg/ffmpegdecoderlibrary.h"
#include "tests/datatable.h"
#include "tests/device/dh/scenedevices.h"

#include <QDir>
#include <QImage>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QThread>

namespace {

const QString recorder = QStringLiteral("02:1a:c5:00:00:03");
const QString camera = QStringLiteral("02:1a:c5:00:00:04");
const QString freshCamera = QStringLiteral("02:1a:c5:00:00:05");
const QString recorderPort = QStringLiteral("192.168.1.12:37777");
const QString cameraPort = QStringLiteral("192.168.1.13:37777");
const QString freshPort = QStringLiteral("192.168.1.14:37777");
constexpr int longWait = 30000;

/// What a step has said, a line for each.
struct Told
{
    int channelCount = -1; ///< -1: the channels were not told
    QStringList found;
    QStringList taken;
    StepOutcome outcome;
};

} // namespace

/// Pictures of a simulated site's devices for an overview, and sessions beside the current one.
class TestPictures : public QObject
{
    Q_OBJECT
private:
    QTemporaryDir m_folder;
    std::shared_ptr<sdk::demo::DemoSite> m_site;

    CDeviceFactory *factory() { return CDeviceFactory::getinstance(); }

    Told take(const QString &ipport, int onlyChannel = -1)
    {
        Told told;
        PictureOrder order = {.ipport = ipport,
                              .folder = m_folder.filePath(QStringLiteral("pictures")),
                              .onlyChannel = onlyChannel};
        order.found = [&told](const QVariantList &channels, int channelCount) {
            told.channelCount = channelCount;
            for (const QVariant &channel : channels)
                told.found.append(channel.toMap().value("name").toString());
        };
        order.taken = [&told](int channel, const QString &path, const QString &message) {
            told.taken.append(QStringLiteral("%1 %2").arg(channel).arg(path.isEmpty() ? message : path));
        };
        const DeviceStep step = factory()->pictureStep("dh", order);
        const std::unique_ptr<QThread> thread(QThread::create([&] { told.outcome = step(StepControl()); }));
        thread->start();
        thread->wait();
        return told;
    }
    [[nodiscard]] QString pictureOf(int channel) const
    {
        return m_folder.filePath(QStringLiteral("pictures/%1.jpg").arg(channel));
    }
    [[nodiscard]] qint64 currentHandle()
    {
        return factory()->getConfigData("dh", "loginHandle").toLongLong();
    }
    [[nodiscard]] qsizetype asked(const char *operation, const QString &mac) const
    {
        qsizetype count = 0;
        for (const auto &request : m_site->requests().of(operation))
            count += request.mac == mac ? 1 : 0;
        return count;
    }

private Q_SLOTS:
    void init()
    {
        QDir(m_folder.filePath(QStringLiteral("pictures"))).removeRecursively();
        sdk::demo::Scene scene;
        scene.devices = {sceneDevice(recorder, "192.168.1.12", "NVR"), sceneDevice(camera, "192.168.1.13"),
                         sceneDevice(freshCamera, "192.168.1.14")};
        for (int channel = 0; channel < PictureOrder::maximumChannels + 2; ++channel)
            scene.devices[0].channels.append({QStringLiteral("C%1").arg(channel), channel == 1});
        m_site = sdk::demo::DemoSite::create(scene, std::make_shared<sdk::SystemClock>());
        sdk::SdkLibraries libraries = m_site->libraries();
        libraries.decoder = std::make_shared<sdk::ffmpeg::FfmpegDecoderLibrary>();
        VideoItem::registerLibraries(libraries);
        const auto store = std::make_shared<DeviceStore>(libraries.clock);
        for (const auto &[mac, ipport] :
             {std::pair(recorder, recorderPort), {camera, cameraPort}, {freshCamera, freshPort}}) {
            store->putRow({{DeviceRowKey::mac, mac},
                           {DeviceRowKey::ipport, ipport},
                           {DeviceRowKey::username, QStringLiteral("admin")},
                           {DeviceRowKey::password, QStringLiteral("secret1")},
                           {DeviceRowKey::state, mac != freshCamera}});
        }
        CDeviceFactory::registerBackEnd("dh", [libraries, store] {
            return std::make_shared<CDeviceDH>(store, libraries, [] { return SearchSettings(); });
        });
        QCOMPARE(factory()->findAndLoginDevice("dh", recorderPort, "admin", "secret1"), 0);
        m_site->requests().clear();
    }

    void cleanup()
    {
        CDeviceFactory::deleteInstance();
        VideoItem::registerLibraries({});
        m_site.reset();
    }

    void theChannelsOfADeviceAreTaken()
    {
        const qint64 before = currentHandle();
        const Told told = take(recorderPort);
        QCOMPARE(told.channelCount, PictureOrder::maximumChannels + 2);
        QCOMPARE(told.found.size(), PictureOrder::maximumChannels);
        QCOMPARE(told.found.value(1), "C1");
        QCOMPARE(told.taken.size(), PictureOrder::maximumChannels);
        QCOMPARE(told.taken.value(0), QStringLiteral("0 通道未连接"));
        QCOMPARE(told.taken.value(1), "1 " + pictureOf(1));
        QVERIFY(!QImage(pictureOf(1)).isNull());
        QCOMPARE(told.outcome.result, 0);
        QVERIFY(told.outcome.text.contains("15")); // channels without a camera

        const Told single = take(recorderPort, 1);
        QCOMPARE(single.channelCount, -1);
        QCOMPARE(single.taken, QStringList("1 " + pictureOf(1)));

        QCOMPARE(take(cameraPort).taken, QStringList("0 " + pictureOf(0)));
        // Each in a login of its own, which has ended; the current session goes on.
        QCOMPARE(m_site->requests().of("NetLoginSecure").size(), 3);
        QCOMPARE(m_site->requests().of("NetLogout").size(), 3);
        QCOMPARE(currentHandle(), before);
    }

    void aDeviceWithoutPicturesSaysWhy_data()
    {
        const auto row = dataTable<sdk::demo::Fault, QString, int, int, QString>(
            {"fault", "ipport", "result", "logins", "taken"});
        row("wrong password", sdk::demo::Fault::WrongPassword, cameraPort, 2, 1, {});
        row("no first password", sdk::demo::Fault::OddBytes, freshPort, 7, 0, {});
        row("nothing sent", sdk::demo::Fault::FirstPictureLate, cameraPort, 5, 1,
            QStringLiteral("0 设备没有发送画面"));
    }

    void aDeviceWithoutPicturesSaysWhy()
    {
        QFETCH(sdk::demo::Fault, fault);
        QFETCH(QString, ipport);
        QVERIFY(m_site->setFault(camera, {.fault = fault, .number = 60000}));
        const Told told = take(ipport);
        QTEST(told.outcome.result, "result");
        QTEST(told.taken.join(' '), "taken");
        QTEST(static_cast<int>(m_site->requests().of("NetLoginSecure").size()),
              "logins"); // never another one
    }

    void aSessionOfItsOwn()
    {
        const qint64 current = currentHandle();
        LiveSession session;
        session.setDeviceFactory(factory());
        const QSignalSpy ended(&session, &LiveSession::ended);
        session.open(cameraPort, "admin", "secret1");
        session.open(cameraPort, "admin", "secret1"); // the first one is given up
        QTRY_COMPARE_WITH_TIMEOUT(ended.size(), 1, longWait);
        QCOMPARE(ended.last().at(0).toInt(), 0);
        QCOMPARE(ended.last().at(1).toList().size(), 1);
        const qint64 handle = session.handle();
        QVERIFY(handle != 0 && handle != current);
        QTRY_COMPARE(asked("NetLoginSecure", camera) - asked("NetLogout", camera), 1);

        VideoItem view;
        view.setChannelId(0);
        view.setSession(handle);
        QVERIFY(view.start());
        QCOMPARE(m_site->requests().of("NetStartRealStream").last().mac, camera);
        view.stop();
        view.setSession(0);
        view.setChannelId(1);
        QVERIFY(view.start());
        QCOMPARE(m_site->requests().of("NetStartRealStream").last().mac, recorder);
        view.stop();

        const qsizetype logins = asked("NetLoginSecure", camera);
        const QString folder = QDir::currentPath();
        QVERIFY(QDir::setCurrent(m_folder.path()));
        const QSignalSpy pictures(&session, &LiveSession::pictureTaken);
        session.takePicture(0, "Gate/1");
        const bool isTaken = QTest::qWaitFor([&] { return !pictures.isEmpty(); }, longWait);
        QVERIFY(QDir::setCurrent(folder));
        QVERIFY(isTaken);
        const QString path = pictures.last().at(1).toString().mid(QStringLiteral("file:///").size());
        QCOMPARE(QFileInfo(path).path(), m_folder.filePath("snap/Gate_1"));
        QVERIFY(!QImage(path).isNull());
        QCOMPARE(m_site->requests().of("NetStartRealStream").last().mac, camera);

        session.open(cameraPort, "admin", "secret1"); // the device answers in the session
        QTRY_COMPARE_WITH_TIMEOUT(ended.size(), 2, longWait);
        QCOMPARE(session.handle(), handle);
        QCOMPARE(asked("NetLoginSecure", camera), logins);

        session.close();
        QCOMPARE(session.handle(), 0);
        QTRY_COMPARE(asked("NetLogout", camera), logins);
        QCOMPARE(currentHandle(), current);
    }

    void aSessionThatIsRefused()
    {
        LiveSession session;
        session.setDeviceFactory(factory());
        const QSignalSpy ended(&session, &LiveSession::ended);
        session.open(cameraPort, "admin", "wrong");
        QTRY_COMPARE_WITH_TIMEOUT(ended.size(), 1, longWait);
        QCOMPARE(ended.last().at(0).toInt(), 2);
        QCOMPARE(session.handle(), 0);
        QCOMPARE(m_site->requests().of("NetLoginSecure").size(), 1);
    }
};

QTEST_MAIN(TestPictures)
#include "tst_pictures.moc"
