#include "device/store/devicerow.h"
#include "device/work/livesession.h"
#include "tests/datatable.h"
#include "tests/device/dh/imagesite.h"

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

/// The reports and the result of a step.
struct Report
{
    int channelCount = -1; ///< -1: the channels were not reported
    QStringList found;
    QStringList taken;
    StepOutcome outcome;
};

} // namespace

/// Images of devices for an overview, and sessions in addition to the current one, on a simulated site.
class TestImages : public QObject, private ImageSite
{
    Q_OBJECT
private:
    QTemporaryDir m_folder;

    Report take(const QString &ipport, int onlyChannel = -1)
    {
        Report report;
        ImageOrder order = {.ipport = ipport,
                            .folder = m_folder.filePath(QStringLiteral("images")),
                            .onlyChannel = onlyChannel};
        order.found = [&report](const QVariantList &channels, int channelCount) {
            report.channelCount = channelCount;
            for (const QVariant &channel : channels)
                report.found.append(channel.toMap().value("name").toString());
        };
        order.taken = [&report](int channel, const QString &path, const QString &message) {
            report.taken.append(QStringLiteral("%1 %2").arg(channel).arg(path.isEmpty() ? message : path));
        };
        const DeviceStep step = factory()->backEnd("dh")->imageStep(order);
        const std::unique_ptr<QThread> thread(QThread::create([&] { report.outcome = step(StepControl()); }));
        thread->start();
        thread->wait();
        return report;
    }
    [[nodiscard]] QString imageOf(int channel) const
    {
        return m_folder.filePath(QStringLiteral("images/%1.jpg").arg(channel));
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
        QDir(m_folder.filePath(QStringLiteral("images"))).removeRecursively();
        QList<sdk::demo::SceneDevice> devices = {sceneDevice(recorder, "192.168.1.12", "NVR"),
                                                 sceneDevice(camera, "192.168.1.13"),
                                                 sceneDevice(freshCamera, "192.168.1.14")};
        for (int channel = 0; channel < ImageOrder::maximumChannels + 2; ++channel)
            devices[0].channels.append({QStringLiteral("C%1").arg(channel), channel == 1});
        openSite(devices);
        for (const auto &[mac, ipport] :
             {std::pair(recorder, recorderPort), {camera, cameraPort}, {freshCamera, freshPort}}) {
            m_store->upsertRow({{DeviceRowKey::mac, mac},
                                {DeviceRowKey::ipport, ipport},
                                {DeviceRowKey::username, QStringLiteral("admin")},
                                {DeviceRowKey::password, QStringLiteral("secret1")},
                                {DeviceRowKey::state, mac != freshCamera}});
        }
        QCOMPARE(factory()->findAndLoginDevice("dh", recorderPort, "admin", "secret1"), 0);
        m_site->requests().clear();
    }

    void cleanup() { closeSite(); }

    void anImageOfEachChannelIsTaken()
    {
        const qint64 before = currentHandle();
        const Report report = take(recorderPort);
        QCOMPARE(report.channelCount, ImageOrder::maximumChannels + 2);
        QCOMPARE(report.found.size(), ImageOrder::maximumChannels);
        QCOMPARE(report.found.value(1), "C1");
        QCOMPARE(report.taken.size(), ImageOrder::maximumChannels);
        QCOMPARE(report.taken.value(0), QStringLiteral("0 通道未连接"));
        QCOMPARE(report.taken.value(1), "1 " + imageOf(1));
        QVERIFY(!QImage(imageOf(1)).isNull());
        QCOMPARE(report.outcome.result, 0);
        QVERIFY(report.outcome.text.contains("15")); // channels without a camera

        const Report single = take(recorderPort, 1);
        QCOMPARE(single.channelCount, -1);
        QCOMPARE(single.taken, QStringList("1 " + imageOf(1)));

        QCOMPARE(take(cameraPort).taken, QStringList("0 " + imageOf(0)));
        // Each device had a separate login that has ended. The current session continues.
        QCOMPARE(m_site->requests().of("NetLoginSecure").size(), 3);
        QCOMPARE(m_site->requests().of("NetLogout").size(), 3);
        QCOMPARE(currentHandle(), before);
    }

    void aDeviceWithoutImagesReportsTheReason_data()
    {
        const auto row = dataTable<sdk::demo::Fault, QString, int, int, QString>(
            {"fault", "ipport", "result", "logins", "taken"});
        row("wrong password", sdk::demo::Fault::WrongPassword, cameraPort, 2, 1, {});
        row("not initialised", sdk::demo::Fault::OddBytes, freshPort, 7, 0, {});
        row("nothing sent", sdk::demo::Fault::FirstPictureLate, cameraPort, 5, 1,
            QStringLiteral("0 设备没有发送画面"));
    }

    void aDeviceWithoutImagesReportsTheReason()
    {
        QFETCH(sdk::demo::Fault, fault);
        QFETCH(QString, ipport);
        QVERIFY(m_site->setFault(camera, {.fault = fault, .number = 60000}));
        const Report report = take(ipport);
        QTEST(report.outcome.result, "result");
        QTEST(report.taken.join(' '), "taken");
        QTEST(static_cast<int>(m_site->requests().of("NetLoginSecure").size()),
              "logins"); // never a second attempt
    }

    void aSeparateSessionKeepsTheCurrentOne()
    {
        const qint64 current = currentHandle();
        LiveSession session;
        session.setDeviceFactory(factory());
        const QSignalSpy ended(&session, &LiveSession::ended);
        session.open(cameraPort, "admin", "secret1");
        session.open(cameraPort, "admin", "secret1"); // cancels the first one
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
        const QSignalSpy images(&session, &LiveSession::imageTaken);
        session.takeImage(0, "Gate/1");
        const bool isTaken = QTest::qWaitFor([&] { return !images.isEmpty(); }, longWait);
        QVERIFY(QDir::setCurrent(folder));
        QVERIFY(isTaken);
        const QString path = images.last().at(1).toString().mid(QStringLiteral("file:///").size());
        QCOMPARE(QFileInfo(path).path(), m_folder.filePath("snap/Gate_1"));
        QVERIFY(!QImage(path).isNull());
        QCOMPARE(m_site->requests().of("NetStartRealStream").last().mac, camera);

        session.open(cameraPort, "admin", "secret1"); // the session is still valid
        QTRY_COMPARE_WITH_TIMEOUT(ended.size(), 2, longWait);
        QCOMPARE(session.handle(), handle);
        QCOMPARE(asked("NetLoginSecure", camera), logins);

        session.close();
        QCOMPARE(session.handle(), 0);
        QTRY_COMPARE(asked("NetLogout", camera), logins);
        QCOMPARE(currentHandle(), current);
    }

    void aRefusedSessionIsReported()
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

QTEST_MAIN(TestImages)
#include "tst_images.moc"
