#include "device/batch/batches.h"
#include "gallery/imagegallery.h"
#include "tests/files/filecontents.h"
#include "tests/gallery/imagesbackend.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

/// Images of many devices: fetched by batches, stored in files, saved as snapshots.
class TestImageGallery : public QObject
{
    Q_OBJECT
private:
    QTemporaryDir m_folder;
    std::unique_ptr<ImagesFactory> m_site;
    std::unique_ptr<BatchEngine> m_engine;
    std::unique_ptr<Batches> m_batches;
    std::unique_ptr<ImageGallery> m_gallery;

    [[nodiscard]] ImagesBackEnd &devices() const { return *m_site->devices; }

    /// A line for each cell: "device · name: state message".
    [[nodiscard]] QStringList cells() const
    {
        static const QStringList states = {"waiting", "fetching", "taken", "failed"};
        QStringList lines;
        for (int row = 0; row < m_gallery->rowCount(); ++row) {
            const QVariantMap cell = m_gallery->get(row);
            QString line = cell["device"].toString();
            for (const char *key : {"name", "note"}) {
                if (!cell[key].toString().isEmpty())
                    line += " · " + cell[key].toString();
            }
            line += ": " + states.at(cell["stage"].toInt());
            if (!cell["message"].toString().isEmpty())
                line += " " + cell["message"].toString();
            lines.append(line);
        }
        return lines;
    }
    [[nodiscard]] QString fileOf(int row) const
    {
        return QUrl(m_gallery->get(row)["image"].toString()).toLocalFile();
    }
    void awaitEnd() const
    {
        QTRY_VERIFY(!m_gallery->batch());
        QCoreApplication::processEvents(); // the last cells follow the batch
    }

private Q_SLOTS:
    void init()
    {
        QDir::setCurrent(m_folder.path());
        QDir(QStringLiteral("snap")).removeRecursively();
        m_site = std::make_unique<ImagesFactory>();
        m_engine = std::make_unique<BatchEngine>(nullptr);
        m_batches = std::make_unique<Batches>(m_site->factory, *m_engine, [] { return 2; });
        m_gallery = std::make_unique<ImageGallery>();
        m_gallery->setDeviceFactory(&m_site->factory);
        m_gallery->setBatches(m_batches.get());
    }
    void cleanup()
    {
        devices().release();
        m_gallery.reset();
        m_batches.reset();
        m_engine.reset();
        m_site.reset();
    }

    void everyChannelHasACell()
    {
        devices().addDevice(20, "gate", {});
        devices().addDevice(21, "recorder", {.channels = {"north", "", "south"}, .channelCount = 20});
        devices().addDevice(22, "shed", {.result = 2});
        devices().addDevice(23, "", {});
        devices().addDevice(24, "yard", {});
        QVERIFY(m_gallery->show(m_site->rows()));
        QCOMPARE(m_gallery->deviceCount(), 5);
        QCOMPARE(m_gallery->rowCount(), 5); // until the devices have responded
        awaitEnd();
        const QStringList expected = {
            "gate: taken",
            "recorder · north: taken",
            "recorder: failed no camera",
            QStringLiteral("recorder · south · 共 20 个通道，仅显示前 3 个: taken"),
            QStringLiteral("shed: failed 密码错误"),
            "B-2230-IR: taken",
            "yard: taken",
        };
        QCOMPARE(cells(), expected);
        QCOMPARE(m_gallery->images(), 5);
        QCOMPARE(m_gallery->failures(), 2);
        QVERIFY(QImage(fileOf(1)) != QImage(fileOf(3)));
        QCOMPARE(m_gallery->devices().at(1).toMap()["ipport"], "192.168.1.21:37777");
        QCOMPARE(m_gallery->get(3)["channel"].toInt(), 2);
        QCOMPARE(devices().mostParallel(), 2);      // as set
        QCOMPARE(devices().takeOrders().size(), 5); // each once
    }

    void aRenamedDeviceHasItsNewName()
    {
        devices().addDevice(20, "gate", {});
        devices().addDevice(21, "recorder", {.channels = {"north", "south"}, .channelCount = 2});
        m_gallery->show(m_site->rows());
        awaitEnd();
        devices().ipv4.clear();
        devices().addDevice(21, "archive", {});
        m_gallery->readDevices();
        const QStringList expected = {"gate: taken", "archive · north: taken", "archive · south: taken"};
        QCOMPARE(cells(), expected);
    }

    void aRenamedChannelHasItsNewName()
    {
        devices().addDevice(20, "gate", {});
        devices().addDevice(21, "recorder", {.channels = {"north", "south"}, .channelCount = 2});
        m_gallery->show(m_site->rows());
        awaitEnd();
        m_gallery->renameChannel("192.168.1.20:37777", 0, "door"); // its device has the name in the list
        m_gallery->renameChannel("192.168.1.21:37777", 1, "yard");
        QCOMPARE(cells(), (QStringList{"gate: taken", "recorder · north: taken", "recorder · yard: taken"}));
    }

    void oneIsFetchedAgain()
    {
        devices().addDevice(21, "recorder", {.channels = {"north", "south"}, .channelCount = 2});
        devices().addDevice(22, "shed", {.result = 5});
        m_gallery->show(m_site->rows());
        awaitEnd();
        const QStringList before = {fileOf(0), fileOf(1)};
        const QByteArray bytes = fileContents(before.at(0));
        devices().change(21, {.channels = {"north", ""}, .channelCount = 2});
        devices().change(22, {});
        static_cast<void>(devices().takeOrders());

        QVERIFY(m_gallery->fetch(0));
        QVERIFY(!m_gallery->fetch(1)); // while another one is fetched
        awaitEnd();
        QCOMPARE(devices().takeOrders(), QStringList("192.168.1.21:37777 0"));
        QVERIFY(fileOf(0) != before.at(0) && !QFile::exists(before.at(0)));
        QCOMPARE(fileContents(fileOf(0)), bytes);
        QCOMPARE(fileOf(1), before.at(1));

        QVERIFY(m_gallery->fetch(1));
        awaitEnd();
        QCOMPARE(cells().at(1), "recorder · south: failed no camera");
        QVERIFY(!QFile::exists(before.at(1)));
        QVERIFY(m_gallery->fetch(2));
        awaitEnd();
        QCOMPARE(devices().takeOrders().last(), "192.168.1.22:37777 -1");
        QCOMPARE(cells().at(2), "shed: taken");

        devices().ipv4.clear(); // a search has started
        QVERIFY(m_gallery->fetch(2));
        awaitEnd();
        QCOMPARE(devices().takeOrders(), QStringList("192.168.1.22:37777 -1"));
    }

    void aStoppedCellKeepsItsImage()
    {
        devices().addDevice(20, "gate", {});
        devices().addDevice(21, "yard", {.result = 5});
        m_gallery->show(m_site->rows());
        awaitEnd();
        devices().change(20, {.waits = true});
        devices().change(21, {.waits = true});
        QVERIFY(m_gallery->fetchAll());
        QTRY_COMPARE(cells().at(0), "gate: fetching");
        m_gallery->stop();
        awaitEnd();
        QCOMPARE(cells(), (QStringList{"gate: taken", QStringLiteral("yard: failed 未执行")}));
        QVERIFY(QFile::exists(fileOf(0)));
        QCOMPARE(m_batches->failedMarks()->count(), 0); // fetching images is not a change of devices
    }

    void imagesAreSavedAsSnapshots()
    {
        devices().addDevice(20, "gate", {});
        devices().addDevice(21, "recorder", {.channels = {"north", "", "south"}, .channelCount = 3});
        devices().addDevice(22, "shed", {});
        m_gallery->show(m_site->rows());
        awaitEnd();
        QVERIFY(QDir().mkpath("snap"));
        QVERIFY(writeFile("snap/192.168.1.22_37777", "in the way"));
        const QSignalSpy saved(m_gallery.get(), &ImageGallery::saved);
        m_gallery->saveAll();
        QVERIFY(m_gallery->isSaving());
        QTRY_COMPARE(saved.size(), 1);
        QVERIFY(!m_gallery->isSaving());
        QCOMPARE(saved.first().at(0).toInt(), 3);
        QCOMPARE(saved.first().at(1).toInt(), 1);
        QCOMPARE(saved.first().at(2).toString(), QDir::current().absoluteFilePath("snap"));
        QVERIFY(saved.first().at(3).toString().contains("192.168.1.22_37777"));
        QCOMPARE(fileContents("snap/192.168.1.20_37777/0.jpg"), fileContents(fileOf(0)));
        QCOMPARE(QDir("snap/192.168.1.21_37777").entryList(QDir::Files), (QStringList{"0.jpg", "2.jpg"}));
    }

    void removedCellsDoNotReturn()
    {
        const auto temporaryFolders = [] {
            return QDir(QDir::tempPath()).entryList({"tst_imagegallery-*"});
        };
        const QStringList before = temporaryFolders();
        devices().addDevice(20, "gate", {.waits = true});
        m_gallery->show(m_site->rows());
        QTRY_COMPARE(cells().first(), "gate: fetching");
        QVERIFY(temporaryFolders() != before);
        m_gallery->clear();
        QCOMPARE(m_gallery->rowCount(), 0);
        QVERIFY(!m_gallery->show(m_site->rows())); // the batch has not ended yet
        devices().release();
        QTRY_VERIFY(!m_batches->isRunning());
        QCoreApplication::processEvents();
        QCOMPARE(cells(), QStringList("gate: waiting")); // the earlier result is not shown
        m_gallery->clear();
        QTRY_COMPARE(temporaryFolders(), before); // including files that were written meanwhile
    }

    /// The results of the previous batch are still on their way when another page starts a batch.
    void aRefusedFetchKeepsEarlierResults()
    {
        devices().addDevice(20, "gate", {.result = 2});
        const auto isRefused = std::make_shared<bool>(false);
        connect(m_gallery.get(), &ImageGallery::batchChanged, this, [this, isRefused] {
            if (m_gallery->batch())
                return;
            QVERIFY(m_batches->start({.family = "dh",
                                      .title = "Other",
                                      .devices = {{.name = "x", .identity = "x", .ipport = "", .title = ""}},
                                      .stepOf = [](const BatchDevice &) -> DeviceStep {
                                          return [](const StepControl &) {
                                              return StepOutcome();
                                          };
                                      }}));
            *isRefused = !m_gallery->fetchAll();
        });
        m_gallery->show(m_site->rows());
        QTRY_VERIFY(*isRefused);
        QTRY_VERIFY(!m_batches->isRunning());
        QTRY_COMPARE(cells(), QStringList(QStringLiteral("gate: failed 密码错误")));
    }

    void furtherDevicesAreOmitted()
    {
        for (int number = 0; number < ImageGallery::maximumDevices + 3; ++number)
            devices().add({.mac = numberedMac(number)});
        m_gallery->show(m_site->rows());
        QCOMPARE(m_gallery->rowCount(), ImageGallery::maximumDevices);
        QCOMPARE(m_gallery->leftOut(), 3);
        m_gallery->clear();
        QCOMPARE(m_gallery->leftOut(), 0);
    }
};

QTEST_MAIN(TestImageGallery)
#include "tst_imagegallery.moc"
