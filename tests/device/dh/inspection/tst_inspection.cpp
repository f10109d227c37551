#include "device/registry/beforeimages.h"
#include "device/registry/mapkeys.h"
#include "device/work/sessionwork.h"
#include "tests/datatable.h"
#include "tests/device/dh/configsite.h"
#include "tests/device/dh/imagesite.h"

#include <QFileInfo>
#include <QThread>

/// Values of a device for a report, read from a simulated site.
class TestInspection : public QObject
{
    Q_OBJECT
private:
    struct Report
    {
        std::optional<DeviceInspection> inspection;
        StepOutcome outcome;
    };

    QList<sdk::demo::SceneDevice> m_devices;
    std::unique_ptr<ConfigSite> m_site;

    [[nodiscard]] Report inspect(const sdk::demo::SceneDevice &device) const
    {
        Report report;
        report.outcome = m_site->factory->backEnd("dh")->inspectionStep(
            {.ipport = ipportOf(device), .inspected = [&report](const DeviceInspection &values) {
                 report.inspection = values;
             }})(StepControl());
        return report;
    }

private Q_SLOTS:
    void init()
    {
        m_devices = {configDevice(1, "IPC", 1), configDevice(2, "NVR", 3)};
        m_devices[0].serial = "3A4820613BR";
        m_site = std::make_unique<ConfigSite>(m_devices);
    }
    void cleanup()
    {
        m_site->engine->end();
        m_site.reset();
    }

    void valuesOfADevice()
    {
        const Report camera = inspect(m_devices.at(0));
        QCOMPARE(camera.outcome, StepOutcome());
        QVERIFY(camera.inspection);
        QCOMPARE(camera.inspection->detail.value("serial"), "3A4820613BR");
        QCOMPARE(camera.inspection->usesTimeServer, std::optional(false));
        QVERIFY(camera.inspection->clockOffset);
        QCOMPARE(camera.inspection->streams.size(), 1);
        const StreamSettings &stream = camera.inspection->streams.at(0);
        QVERIFY2(!stream.compression.isEmpty() && stream.width > 0 && stream.frameRate > 0 &&
                     stream.bitRate > 0,
                 qPrintable(stream.compression));
        // The login ends with the step.
        QCOMPARE(m_site->site->requests().of("NetLogout").size(), 1);

        const Report recorder = inspect(m_devices.at(1));
        QCOMPARE(recorder.inspection->channelCount, 3);
        QCOMPARE(recorder.inspection->streams.size(), 3);
        QCOMPARE(recorder.inspection->streams.at(2).channel, 2);
    }

    void aRefusedLoginReadsNothing()
    {
        m_site->factory->setDefaultAccount("dh", "admin", "wrong1");
        const Report report = inspect(m_devices.at(0));
        QCOMPARE(report.outcome.result, resultCode(LoginResult::WrongPassword));
        QVERIFY(!report.inspection);
        QVERIFY(m_site->site->requests().of("NetGetItem").isEmpty());
    }

    void anUnreadStreamIsNotInvented()
    {
        m_site->net->silentItem = 1100; // the device stops responding at the first stream
        const Report report = inspect(m_devices.at(1));
        QCOMPARE(report.outcome.result, resultCode(LoginResult::NetworkFailure));
        QVERIFY(report.inspection);
        QCOMPARE(report.inspection->streams.size(), 0);
        QCOMPARE(report.inspection->usesTimeServer, std::optional(false)); // read before
    }
};

/// Images from before a change, on a site whose streams are decoded.
class TestImagesBefore : public QObject, private ImageSite
{
    Q_OBJECT
private:
    std::shared_ptr<BeforeImages> m_images;

    void perform(const SessionJob &job)
    {
        const PageStep step = factory()->backEnd("dh")->sessionStep(job);
        PageOutcome outcome;
        const std::unique_ptr<QThread> thread(QThread::create([&] { outcome = step(StepControl()); }));
        thread->start();
        thread->wait();
        if (outcome.take)
            outcome.take();
    }

private Q_SLOTS:
    void init()
    {
        sdk::demo::SceneDevice camera = sceneDevice("02:1a:c5:00:00:04", "192.168.1.13");
        openSite({camera});
        m_images = std::make_shared<BeforeImages>();
        factory()->backEnd("dh")->setBeforeImages(m_images);
    }
    void cleanup() { closeSite(); }

    void theFirstChangeOfAChannelHasAnImage()
    {
        const QString ipport = QStringLiteral("192.168.1.13:37777");
        QCOMPARE(factory()->findAndLoginDevice("dh", ipport, "admin", "secret1"), 0);
        QSignalSpy written(factory(), &CDeviceFactory::signalSettingWritten);
        perform([](SessionOperations &operations, const StepControl &) {
            operations.getCameraConfig();
            operations.getVideoIn();
            return QVariant();
        });
        QVERIFY(m_images->of(ipport).isEmpty()); // reading changes nothing
        QCOMPARE(written.size(), 0);
        for (const int value : {60, 61}) {
            perform([value](SessionOperations &operations, const StepControl &) {
                operations.setConfigData("picture", value, "brightnessSlider");
                return QVariant();
            });
        }
        const QList<BeforeImages::Image> images = m_images->of(ipport);
        QCOMPARE(images.size(), 1); // the second change has none
        QVERIFY(QFileInfo(images.at(0).path).size() > 0);
        QCOMPARE(written.size(), 2);
        QCOMPARE(written.at(1).at(1).toString(), "image.picture.brightnessSlider");
        QCOMPARE(written.at(1).at(3).toString(), "61");
        QCOMPARE(m_site->requests().of("NetStartRealStream").size(), 1);
    }
};

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    TestInspection inspection;
    TestImagesBefore images;
    const int failures = QTest::qExec(&inspection, argc, argv);
    return failures + QTest::qExec(&images, argc, argv);
}

#include "tst_inspection.moc"
