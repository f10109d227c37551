#include "device/batch/batches.h"
#include "report/sitereport.h"
#include "sheets/qexcel.h"
#include "tests/datatable.h"
#include "tests/gallery/imagesbackend.h"

#include <QFileInfo>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>

namespace {

constexpr int reportWait = 60000;

} // namespace

/// A back end whose devices have values and images.
class ReportBackEnd : public ImagesBackEnd
{
    Q_OBJECT
public:
    /// A device with an image, whose clock is `offset` seconds ahead.
    void addReportDevice(int number, const QString &name, qint64 offset = 0, int result = 0)
    {
        addDevice(number, name, {.result = result});
        m_results.insert(ipportOf(number), result);
        m_offsets.insert(ipportOf(number), offset);
    }

    DeviceStep inspectionStep(const InspectionOrder &order) override
    {
        return [order, result = m_results.value(order.ipport),
                offset = m_offsets.value(order.ipport)](const StepControl &) {
            if (result != 0)
                return StepOutcome{.result = result, .text = {}};
            const int number = order.ipport.section(':', 0, 0).section('.', -1).toInt();
            order.inspected({.detail = {{"serial", "SN-" + order.ipport.section(':', 0, 0)},
                                        {"mac", QString::fromStdString(numberedMac(number))}},
                             .channelCount = 1,
                             .streams = {{.channel = 0,
                                          .compression = "H.265",
                                          .width = 1920,
                                          .height = 1080,
                                          .frameRate = 25,
                                          .bitRate = 4096}},
                             .clockOffset = offset,
                             .usesTimeServer = true,
                             .timeServer = "ntp.example"});
            return StepOutcome();
        };
    }
    DeviceStep upgradeStep(const QString &mac) override
    {
        return [this, mac](const StepControl &) {
            const std::lock_guard lock(m_mutex);
            m_upgraded.append(mac);
            return StepOutcome();
        };
    }
    DeviceStep systemStep(const QString &, const QVariantMap &, const QString &) override
    {
        return [](const StepControl &) {
            return StepOutcome();
        };
    }
    [[nodiscard]] QStringList upgraded()
    {
        const std::lock_guard lock(m_mutex);
        return m_upgraded;
    }

private:
    QHash<QString, int> m_results;
    QHash<QString, qint64> m_offsets;
    std::mutex m_mutex;
    QStringList m_upgraded;
};

/// Reports of a site: their files and their contents.
class TestSiteReport : public QObject
{
    Q_OBJECT
private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::shared_ptr<ReportBackEnd> m_devices;
    std::unique_ptr<CDeviceFactory> m_factory;
    std::unique_ptr<BatchEngine> m_engine;
    std::unique_ptr<Batches> m_batches;
    std::unique_ptr<VisitChanges> m_changes;
    std::unique_ptr<SiteReport> m_report;
    QStringList m_paths;
    QString m_reason;
    QString m_temporary; ///< the folder for temporary files
    const QByteArray m_temporaryBefore = qgetenv("TMPDIR");

    [[nodiscard]] ReportOrder order() const
    {
        return {.site = QStringLiteral("North / 北"),
                .installer = "A. Fitter",
                .folder = m_folder->filePath("reports"),
                .identities = m_report->allDevices()};
    }

    /// Makes a report and waits for its end.
    bool make(const ReportOrder &order)
    {
        QSignalSpy finished(m_report.get(), &SiteReport::finished);
        if (!m_report->start(order) || (finished.isEmpty() && !finished.wait(reportWait)))
            return false;
        m_paths = finished.constFirst().at(0).toStringList();
        m_reason = finished.constFirst().at(1).toString();
        return true;
    }

    [[nodiscard]] static QByteArray outputOf(const QString &program, const QStringList &arguments)
    {
        QProcess process;
        process.start(program, arguments);
        return process.waitForFinished() ? process.readAllStandardOutput() : QByteArray();
    }
    [[nodiscard]] QString documentText() const
    {
        return QString::fromUtf8(outputOf("pdftotext", {"-layout", m_paths.value(0), "-"}));
    }
    /// The number of JPEG images in the document.
    [[nodiscard]] qsizetype documentImages() const
    {
        return outputOf("pdfimages", {"-list", m_paths.value(0)}).count(" jpeg ");
    }
    /// The cells of a row of a sheet of the workbook, separated by bars.
    [[nodiscard]] QString cells(int sheet, int row, int columns) const
    {
        QExcel workbook;
        QStringList texts;
        if (!workbook.open(m_paths.value(1)) || !workbook.selectSheet(sheet))
            return "cannot be read";
        for (int column = 1; column <= columns; ++column)
            texts.append(workbook.cellText(row, column).value_or("?"));
        return texts.join('|');
    }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_temporary = m_folder->filePath("temporary");
        QVERIFY(QDir().mkpath(m_temporary));
        qputenv("TMPDIR", m_temporary.toUtf8());
        m_devices = std::make_shared<ReportBackEnd>();
        m_factory =
            std::make_unique<CDeviceFactory>(CDeviceFactory::BackEndCreators{{QStringLiteral("dh"), [this] {
                                                                                  return m_devices;
                                                                              }}});
        m_engine = std::make_unique<BatchEngine>(nullptr);
        m_batches = std::make_unique<Batches>(*m_factory, *m_engine, [] { return 2; });
        m_changes = std::make_unique<VisitChanges>(*m_factory, *m_batches, VisitChanges::ImagesBefore::Taken);
        m_report = std::make_unique<SiteReport>(*m_factory, *m_batches, m_changes.get());
    }
    void cleanup()
    {
        m_devices->release();
        m_report.reset();
        m_changes.reset();
        m_batches.reset();
        m_engine.reset();
        m_factory.reset();
        m_devices.reset();
        m_temporaryBefore.isEmpty() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", m_temporaryBefore);
    }

    void aReportHasEachDevice()
    {
        m_devices->addReportDevice(20, QStringLiteral("东门"));
        m_devices->addReportDevice(21, "shed", 90);
        m_devices->addReportDevice(22, "yard", 0, resultCode(LoginResult::WrongPassword));
        m_devices->addReportDevice(23, "annex", 0, resultCode(LoginResult::NetworkFailure));
        QVERIFY(make(order()));
        QCOMPARE(m_reason, QString());
        QCOMPARE(m_paths.size(), 2);
        QVERIFY2(QFileInfo(m_paths.at(0)).fileName().startsWith(QStringLiteral("North _ 北-")),
                 qPrintable(m_paths.at(0)));

        const QString text = documentText();
        for (const QString &part :
             {QStringLiteral("North / 北"), QStringLiteral("A. Fitter"), QStringLiteral("东门"),
              QStringLiteral("SN-192.168.1.21"), QStringLiteral("192.168.1.23:37777"),
              QStringLiteral("H.265 1920×1080 25 fps 4096 kbit/s"), QStringLiteral("ntp.example"),
              QStringLiteral("登录被拒绝"), QStringLiteral("时间不准"), QStringLiteral("快 90 秒"),
              QStringLiteral("未报告")})
            QVERIFY2(text.contains(part), qPrintable(part + '\n' + text));
        QCOMPARE(documentImages(), 2); // of the devices that were reached

        QCOMPARE(cells(1, 2, 9).section('|', 1),
                 QStringLiteral("东门|IPC|B-2230-IR|192.168.1.20|37777|02:1a:c5:00:00:14|v2.840.1|"
                                "SN-192.168.1.20"));
        QCOMPARE(cells(1, 3, 12).section('|', -1), "90");
        QCOMPARE(cells(2, 2, 2), QStringLiteral("登录被拒绝|yard"));
        QCOMPARE(cells(2, 3, 2), QStringLiteral("无法读取|annex"));
        QCOMPARE(cells(2, 4, 3), QStringLiteral("时间不准|shed|192.168.1.21:37777"));
    }

    void valuesOfAnotherDeviceAtTheAddressAreNotShown()
    {
        m_devices->addReportDevice(20, "first");
        m_devices->add({.address = "192.168.1.20", .mac = "02:1a:c5:00:99:01", .name = "second"});
        QVERIFY(make(order()));
        const QList<ReportDevice> &devices = m_report->data().devices;
        QCOMPARE(devices.size(), 2);
        QVERIFY(devices.at(0).isRead); // the device has reported this MAC
        QVERIFY(!devices.at(1).isRead);
        QCOMPARE(devices.at(1).mac, "02:1a:c5:00:99:01");
        QCOMPARE(devices.at(1).images.size(), 0);
        QCOMPARE(m_report->data().findings.size(), 2);
    }

    void changesOfTheVisitAreListed()
    {
        m_devices->addReportDevice(20, "gate");
        m_devices->addReportDevice(21, "shed");
        const QStringList addresses = {"192.168.1.20:37777", "192.168.1.21:37777"};
        const auto run = [](Batch *batch) {
            QSignalSpy finished(batch, &Batch::finished);
            return !batch->isRunning() || finished.wait();
        };
        QVERIFY(run(m_batches->configureSystem("dh", "readTime", "Read clock", {}, addresses)));
        QVERIFY(run(m_batches->configureSystem("dh", "ntpConfig", "Time server",
                                               {{"ntpSet", true}, {"ntpServer", "ntp.example"}}, addresses)));
        QVERIFY(run(m_batches->configureSystem("dh", "modifyPassword", "Password", {{"password", "secret7"}},
                                               addresses.mid(1))));
        // A slider writes each of its positions.
        for (const char *value : {"51", "52", "53"})
            Q_EMIT m_factory->signalSettingWritten(addresses.at(0), "image.picture.brightnessSlider", 0,
                                                   QString::fromLatin1(value));
        QVERIFY(make(order()));
        QStringList changes;
        for (const VisitChange &change : m_report->data().changes)
            changes.append(QStringLiteral("%1 %2 %3")
                               .arg(change.ipport.section(':', 0, 0), change.operation, change.value));
        changes.sort();
        const QStringList expected = {QStringLiteral("192.168.1.20 图像设置：亮度 53"),
                                      QStringLiteral("192.168.1.20 时间服务器和时区 ntp.example"),
                                      QStringLiteral("192.168.1.21 修改密码 "),
                                      QStringLiteral("192.168.1.21 时间服务器和时区 ntp.example")};
        QCOMPARE(changes, expected);
        const QString text = documentText();
        QVERIFY(text.contains(QStringLiteral("图像设置：亮度")));
        QVERIFY(!text.contains("secret7"));
        QVERIFY2(cells(3, 5, 5).contains(QStringLiteral("图像设置：亮度|53")), qPrintable(cells(3, 5, 5)));
        QVERIFY2(cells(3, 2, 1).toDouble() > 40000, qPrintable(cells(3, 2, 1))); // a date, not a text
    }

    void anUpgradedDeviceHasTwoImages()
    {
        m_devices->addReportDevice(20, "gate");
        m_devices->addReportDevice(21, "shed");
        m_devices->addReportDevice(22, "locked");
        // The image before the upgrade is refused: the upgrade must not try the account a second time.
        m_devices->change(22, {.result = resultCode(LoginResult::WrongPassword)});
        const QStringList names = m_report->allDevices();
        BatchPlan plan = {.family = "dh", .title = "Upgrade", .work = "upgrade"};
        plan.devices = batchDevices(*m_factory, "dh", {names.at(0), names.at(2)});
        plan.accountOf = m_batches->rowAccounts("dh");
        plan.stepOf = [this](const BatchDevice &device) {
            return m_devices->upgradeStep(device.identity);
        };
        Batch *batch = m_batches->start(plan);
        QTRY_VERIFY(!batch->isRunning());
        QCOMPARE(m_devices->upgraded(), names.mid(0, 1));
        QVERIFY(make(order()));
        QCOMPARE(m_report->data().devices.at(0).imagesBefore.size(), 1);
        QCOMPARE(m_report->data().devices.at(1).imagesBefore.size(), 0);
        QVERIFY(documentText().contains(QStringLiteral("更改前")));
        QCOMPARE(documentImages(), 3);
    }

    void aStoppedReportWritesNothing()
    {
        for (int number = 20; number < 26; ++number) {
            m_devices->addReportDevice(number, "gate");
            m_devices->change(number, {.waits = true});
        }
        QSignalSpy finished(m_report.get(), &SiteReport::finished);
        QVERIFY(m_report->start(order()));
        QVERIFY(!m_report->start(order())); // one at a time
        QTRY_VERIFY(m_devices->mostParallel() > 0);
        m_report->stop();
        QTRY_COMPARE(finished.size(), 1);
        QCOMPARE(finished.at(0).at(0).toStringList(), QStringList());
        QCOMPARE(finished.at(0).at(1).toString(), QString());
        QVERIFY(!QFileInfo::exists(m_folder->filePath("reports")));
        QVERIFY(!m_report->isRunning());
    }

    void anUnusableFolderStartsNothing_data()
    {
        const auto row = dataTable<QString, QString, QString>({"folder", "temporary", "named"});
        row("no folder can be created", "occupied/reports", {}, "occupied/reports");
        row("no file can be created", "/proc", {}, "/proc");
        row("no temporary folder", "reports", "/proc", "/proc");
    }

    void anUnusableFolderStartsNothing()
    {
        QFETCH(QString, folder);
        QFETCH(QString, temporary);
        QFETCH(QString, named);
        m_devices->addReportDevice(20, "gate");
        QFile file(m_folder->filePath("occupied"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        ReportOrder unusable = order();
        unusable.folder = QDir(m_folder->path()).filePath(folder);
        if (!temporary.isEmpty())
            qputenv("TMPDIR", temporary.toUtf8());
        QVERIFY(!m_report->start(unusable));
        QVERIFY2(m_report->problem().contains(named), qPrintable(m_report->problem()));
        QVERIFY(!SiteReport::folderProblem(unusable.folder).isEmpty()); // as the command checks it
        QVERIFY(!m_batches->current());
        QVERIFY(!QFileInfo::exists(m_folder->filePath("reports")) || !temporary.isEmpty());
        qputenv("TMPDIR", m_temporary.toUtf8());
        QVERIFY(m_report->start(order()));
        QCOMPARE(m_report->problem(), QString());
        QTRY_VERIFY(!m_report->isRunning());
    }

    /// One file fails, and is written to another folder without reading the device again.
    void aFailedFileDoesNotPreventTheOther()
    {
        m_devices->addReportDevice(20, "gate");
        m_devices->change(20, {.waits = true});
        QSignalSpy finished(m_report.get(), &SiteReport::finished);
        QVERIFY(m_report->start(order()));
        QTRY_COMPARE(m_devices->mostParallel(), 1);
        qputenv("TMPDIR", "/proc"); // of the workbook
        m_devices->release();
        QTRY_COMPARE(finished.size(), 1);
        QStringList paths = finished.at(0).at(0).toStringList();
        QCOMPARE(paths.size(), 1);
        QVERIFY(paths.at(0).endsWith(".pdf"));
        const QString reason = finished.at(0).at(1).toString();
        QVERIFY2(reason.contains(".xlsx") && !reason.contains(".pdf"), qPrintable(reason));
        QVERIFY(m_report->canWriteAgain());

        QVERIFY(!m_report->writeAgain(m_folder->filePath("other")));
        QVERIFY(m_report->problem().contains("/proc"));
        qputenv("TMPDIR", m_temporary.toUtf8());
        QCOMPARE(m_devices->takeOrders().size(), 1);
        QVERIFY(m_report->writeAgain(m_folder->filePath("other")));
        QTRY_COMPARE(finished.size(), 2);
        QCOMPARE(finished.at(1).at(1).toString(), QString());
        paths = finished.at(1).at(0).toStringList();
        QCOMPARE(paths.size(), 2);
        QVERIFY2(paths.at(1).startsWith(m_folder->filePath("other/")), qPrintable(paths.at(1)));
        QVERIFY(!outputOf("unzip", {"-p", paths.at(1), "xl/media/image1.jpeg"}).isEmpty());
        QCOMPARE(m_devices->takeOrders(), QStringList());
        QVERIFY(!m_report->canWriteAgain());
    }

    void aReportThatIsStoppedWhileItIsWrittenLeavesNothing()
    {
        m_devices->addReportDevice(20, "gate");
        connect(m_report.get(), &SiteReport::stateChanged, m_report.get(), [this] {
            if (m_report->isWriting())
                m_report->stop();
        });
        QVERIFY(make(order()));
        QCOMPARE(m_paths, QStringList());
        QCOMPARE(m_reason, QString());
        QVERIFY(!QFileInfo::exists(m_folder->filePath("reports")));
        m_report.reset();
        m_changes.reset();
        QCOMPARE(QDir(m_temporary).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
    }

    /// The batch is paused by refused accounts and ended by the user.
    void refusedAccountsDoNotPreventAReport()
    {
        constexpr int count = 12;
        for (int number = 0; number < count; ++number)
            m_devices->addReportDevice(20 + number, "gate", 0,
                                       number < 2 ? 0 : resultCode(LoginResult::WrongPassword));
        QSignalSpy finished(m_report.get(), &SiteReport::finished);
        Batch *batch = m_report->start(order());
        QVERIFY(batch);
        QTRY_VERIFY(batch->isPaused());
        batch->stop();
        QTRY_COMPARE(finished.size(), 1);
        m_paths = finished.at(0).at(0).toStringList();
        QCOMPARE(m_paths.size(), 2);
        const QList<ReportDevice> &devices = m_report->data().devices;
        QCOMPARE(devices.size(), count);
        QVERIFY(devices.at(0).isRead && devices.at(1).isRead);
        QCOMPARE(m_report->data().findings.size(), count - 2); // each of the others has its reason
        const QString text = documentText();
        QVERIFY(text.contains(QStringLiteral("登录被拒绝")));
        QVERIFY2(text.contains(QStringLiteral("连续 5 台设备拒绝登录")), qPrintable(text));
    }

    void oneFileIsEnough()
    {
        m_devices->addReportDevice(20, "gate");
        ReportOrder onlyWorkbook = order();
        onlyWorkbook.wantsDocument = false;
        QVERIFY(make(onlyWorkbook));
        QCOMPARE(m_paths.size(), 1);
        QVERIFY(m_paths.at(0).endsWith(".xlsx"));
    }

    void manyDevicesHaveBoundedImages()
    {
        constexpr int count = 200;
        for (int number = 1; number <= count; ++number)
            m_devices->addReportDevice(number, QStringLiteral("camera %1").arg(number));
        QVERIFY(make(order()));
        QCOMPARE(m_reason, QString());
        QCOMPARE(documentImages(), count);
        const QString size =
            QString::fromLatin1(outputOf("pdfimages", {"-list", m_paths.at(0)}).split('\n').value(2));
        QVERIFY2(size.contains(QStringLiteral(" %1 ").arg(SiteReport::imageWidth)), qPrintable(size));
        QVERIFY2(QFileInfo(m_paths.at(0)).size() < qint64{count} * 64 * 1024,
                 qPrintable(QString::number(QFileInfo(m_paths.at(0)).size())));
        QVERIFY(documentText().contains("camera 200"));
        // The workbook has the files of the images.
        const QImage image =
            QImage::fromData(outputOf("unzip", {"-p", m_paths.at(1), "xl/media/image1.jpeg"}));
        QCOMPARE(image.width(), SiteReport::imageWidth);
    }
};

QTEST_MAIN(TestSiteReport)
#include "tst_sitereport.moc"
