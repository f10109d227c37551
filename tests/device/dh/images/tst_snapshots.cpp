#include "device/batch/batches.h"
#include "tests/datatable.h"
#include "tests/device/dh/imagesite.h"
#include "tests/files/filecontents.h"
#include "tests/files/filesizelimit.h"

#include <QDir>
#include <QElapsedTimer>
#include <QImage>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <optional>

namespace {

const QString recorder = QStringLiteral("02:1a:c5:00:00:03");
const QString other = QStringLiteral("02:1a:c5:00:00:04");
const QString recorderPort = QStringLiteral("192.168.1.12:37777");
const QString otherPort = QStringLiteral("192.168.1.13:37777");
constexpr int longWait = 30000;
constexpr int notDone = 15;

struct Capture
{
    int channel;
    QString path;
    QString message;
    bool operator==(const Capture &) const = default;
};

} // namespace

/// Snapshots of a simulated recorder: real streams, decoded and written.
class TestSnapshots : public QObject, private ImageSite
{
    Q_OBJECT
private:
    QTemporaryDir m_folder;

    /// Takes snapshots and waits for `count` of them.
    QList<Capture> take(const QString &kind, int channel, const QString &folder, int count)
    {
        const bool isAll = kind == QLatin1String("liveCapture");
        QSignalSpy taken(factory(), isAll ? &CDeviceFactory::signalSnapPictureToFile
                                          : &CDeviceFactory::signalSnapPictureToFileAgain);
        factory()->snapPictureToFile("dh", kind, channel, folder);
        if (!QTest::qWaitFor([&] { return taken.size() >= count; }, longWait))
            return {};
        QList<Capture> captures;
        for (const QVariantList &arguments : std::as_const(taken))
            captures.append(
                {arguments.at(0).toInt(), arguments.at(1).toString(), arguments.at(2).toString()});
        return captures;
    }

    static QString pathOf(const QString &folder, int channel)
    {
        return QDir::current().absoluteFilePath(QStringLiteral("snap/%1/%2.jpg").arg(folder).arg(channel));
    }

private Q_SLOTS:
    void init()
    {
        QDir::setCurrent(m_folder.path());
        QDir(QStringLiteral("snap")).removeRecursively();
        QList<sdk::demo::SceneDevice> devices = {sceneDevice(recorder, "192.168.1.12", "NVR"),
                                                 sceneDevice(other, "192.168.1.13")};
        for (const QString &name : {QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")})
            devices[0].channels.append({name, name != QLatin1String("B")});
        for (const QString &name : {QStringLiteral("D"), QStringLiteral("E"), QStringLiteral("F")})
            devices[1].channels.append({name, true});
        openSite(devices);
        QCOMPARE(factory()->findAndLoginDevice("dh", recorderPort, "admin", "secret1"), 0);
    }

    void cleanup() { closeSite(); }

    void everyChannelIsReportedInOrder()
    {
        const QList<Capture> captures = take("liveCapture", 0, "rec", 3);
        const QList<Capture> expected = {{0, "file:///" + pathOf("rec", 0), {}},
                                         {1, {}, QStringLiteral("通道未连接")},
                                         {2, "file:///" + pathOf("rec", 2), {}}};
        QCOMPARE(captures, expected);
        const QImage first(pathOf("rec", 0));
        QVERIFY(!first.isNull());
        QVERIFY(first != QImage(pathOf("rec", 2))); // each channel has a different image
        QVERIFY(!QFile::exists(pathOf("rec", 1)));

        // A quality of 50 gives the example table of the standard (ITU-T T.81, K.1).
        const QByteArray quantisation = QByteArray::fromHex("ffdb004300100b0c0e0c0a100e0d0e1211101318");
        QVERIFY(fileContents(pathOf("rec", 0)).contains(quantisation));
    }

    void aRetryReplacesTheSameFile()
    {
        QVERIFY(m_site->setFault(recorder, {.fault = sdk::demo::Fault::FirstPictureLate, .number = 1200}));
        const QString path = pathOf("rec", 2);
        QDir().mkpath(QFileInfo(path).path());
        QVERIFY(writeFile(path, "an older image"));
        QCOMPARE(take("againCapture", 2, "rec", 1), (QList<Capture>{{2, "file:///" + path, {}}}));
        QVERIFY(!QImage(path).isNull());
        QCOMPARE(QDir(QStringLiteral("snap/rec")).entryList(QDir::Files).size(), 1);
    }

    void aDeviceNameCannotLeaveTheFolder_data()
    {
        const auto row = dataTable<QString>({"name"});
        row("up", QStringLiteral("../../rec"));
        row("absolute", QStringLiteral("/rec"));
        row("empty", QString());
    }

    void aDeviceNameCannotLeaveTheFolder()
    {
        QFETCH(QString, name);
        const QList<Capture> captures = take("againCapture", 0, name, 1);
        QCOMPARE(captures.size(), 1);
        const QString folder = "file:///" + QDir::current().absoluteFilePath(QStringLiteral("snap/"));
        const QString path = captures.first().path;
        QVERIFY(path.startsWith(folder));
        const QString inFolder = path.mid(folder.size());
        QCOMPARE(inFolder.count('/'), 1);
        QCOMPARE(QDir::cleanPath(path.mid(8)), path.mid(8));
    }

    void aFailedWriteReportsItsReason_data()
    {
        // isFull: the disk is full; otherwise a file has the name of the folder
        const auto row = dataTable<bool>({"isFull"});
        row("no folder", false);
        row("full", true);
    }

    void aFailedWriteReportsItsReason()
    {
        QFETCH(bool, isFull);
        QVERIFY(QDir().mkpath(isFull ? "snap/rec" : "snap"));
        const QString file = isFull ? "snap/rec/0.jpg" : "snap/rec";
        QVERIFY(writeFile(file, "kept"));
        std::optional<FileSizeLimit> limit;
        if (isFull)
            limit.emplace(100);
        const QList<Capture> captures = take("liveCapture", 0, "rec", 3);
        limit.reset();
        const QString reason = isFull ? "File too large" : "Not a directory";
        const Capture failed = {0, {}, QStringLiteral("抓图失败，图片无法写入：") + reason};
        QCOMPARE(captures.value(0), failed);
        QCOMPARE(captures.value(2).message, failed.message);
        QCOMPARE(m_site->requests().of("NetStartRealStream").size(), isFull ? 2 : 0);
        QCOMPARE(fileContents(file), QByteArray("kept"));
    }

    void noImageOfAnotherDeviceIsTaken()
    {
        QVERIFY(m_site->setFault(recorder, {.fault = sdk::demo::Fault::FirstPictureLate, .number = 1000}));
        QSignalSpy taken(factory(), &CDeviceFactory::signalSnapPictureToFile);
        factory()->snapPictureToFile("dh", "liveCapture", 0, "rec");
        QVERIFY(m_site->requests().waitFor("NetStartRealStream", 1));
        QCOMPARE(factory()->findAndLoginDevice("dh", otherPort, "admin", "secret1"), 0);
        QTRY_COMPARE_WITH_TIMEOUT(taken.size(), 3, longWait);
        QCOMPARE(taken.at(2).at(2).toString(), QStringLiteral("抓图失败"));
        QVERIFY(!QFile::exists(pathOf("rec", 2)));
        for (const auto &request : m_site->requests().of("NetStartRealStream"))
            QCOMPARE(request.mac, recorder); // the other device gets no request
    }

    void allChannelsAreABatch_data()
    {
        const auto row = dataTable<bool, QList<int>, int>({"isStopped", "results", "reported"});
        row("complete", false, QList<int>{0, snapshotFailed, 0}, 3);
        row("stopped in the first channel", true, QList<int>{notDone, notDone, notDone}, 0);
    }

    void allChannelsAreABatch()
    {
        QFETCH(bool, isStopped);
        QTest::failOnWarning(QRegularExpression("Timers"));
        if (isStopped)
            QVERIFY(
                m_site->setFault(recorder, {.fault = sdk::demo::Fault::FirstPictureLate, .number = 60000}));
        BatchEngine engine(nullptr);
        Batches batches(*factory(), engine, [] { return 8; });
        const QSignalSpy taken(factory(), &CDeviceFactory::signalSnapPictureToFile);
        Batch *batch = batches.takeSnapshots("dh", "Snapshots", recorderPort, {"A", "B", "C"}, "rec");
        QVERIFY(batch);
        if (isStopped) {
            QVERIFY(m_site->requests().waitFor("NetStartRealStream", 1));
            batch->stop();
        }
        QTRY_VERIFY_WITH_TIMEOUT(!batch->isRunning(), longWait);
        QList<int> results;
        for (const Batch::Entry &entry : batch->entries())
            results.append(entry.outcome.result);
        QTEST(results, "results");
        QTEST(static_cast<int>(taken.size()), "reported");
        QCOMPARE(QFile::exists(pathOf("rec", 2)), !isStopped);
        QCOMPARE(m_site->requests().of("NetQueryChannelStates").size(), 1);
        QCOMPARE(batch->entries().at(1).device.title, "B");
        QCOMPARE(batches.failedMarks()->count(), 0); // a channel without a camera is no fault of the device
    }

    void aDeviceWithoutChannelsHasOneSnapshot()
    {
        m_site->changeDevice(recorder,
                             [](sdk::demo::SceneDevice &device, const auto &) { device.channels.clear(); });
        QCOMPARE(factory()->findAndLoginDevice("dh", recorderPort, "admin", "secret1"), 0);
        BatchEngine engine(nullptr);
        Batches batches(*factory(), engine, [] { return 8; });
        Batch *batch = batches.takeSnapshots("dh", "Snapshots", recorderPort, {"A"}, "rec");
        QVERIFY(batch);
        QCOMPARE(batch->total(), 1);
        batch->stop();
        QTRY_VERIFY_WITH_TIMEOUT(!batch->isRunning(), longWait);
    }

    void closingCancelsSnapshots()
    {
        QVERIFY(m_site->setFault(recorder, {.fault = sdk::demo::Fault::FirstPictureLate, .number = 60000}));
        factory()->snapPictureToFile("dh", "liveCapture", 0, "rec");
        QVERIFY(m_site->requests().waitFor("NetStartRealStream", 1));
        QElapsedTimer time;
        time.start();
        CDeviceFactory::deleteInstance();
        QVERIFY(time.elapsed() < 2000); // shorter than the attempts for one channel
    }
};

QTEST_MAIN(TestSnapshots)
#include "tst_snapshots.moc"
