// Firmware upgrades of simulated devices through the network library.
#include "sdk/demo/internal/deviceupgrade.h"
#include "sdk/demo/internal/maintenance.h"
#include "tests/sdk/demo/testsite.h"

#include <QTemporaryDir>

#include <condition_variable>

using namespace std::chrono_literals;
using namespace sdk;
using namespace sdk::demo;
Q_DECLARE_METATYPE(FaultSetting)

namespace {

constexpr auto wait = 10ms;

/// Keeps what it is told, on any thread.
class Told
{
public:
    static void handle(std::int64_t, const UpgradeProgress *progress, void *user)
    {
        auto *told = static_cast<Told *>(user);
        const std::lock_guard lock(told->m_mutex);
        told->m_progress.append(*progress);
        told->m_changed.notify_all();
    }

    /// "phase percent error" of the last one, once there is one of `phase` at `percent` or beyond.
    QString waitFor(UpgradePhase phase, int percent)
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait_for(lock, 10s, [&] {
            return !m_progress.isEmpty() && m_progress.last().phase >= phase &&
                   (m_progress.last().phase > phase || m_progress.last().percent >= percent);
        });
        return m_progress.isEmpty() ? QString() : line(m_progress.last());
    }

    QStringList lines() const
    {
        const std::lock_guard lock(m_mutex);
        QStringList lines;
        for (const UpgradeProgress &progress : m_progress)
            lines.append(line(progress));
        return lines;
    }

private:
    static QString line(const UpgradeProgress &progress)
    {
        return QStringLiteral("%1 %2 %3")
            .arg(static_cast<int>(progress.phase))
            .arg(progress.percent)
            .arg(progress.error, 0, 16);
    }

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    QList<UpgradeProgress> m_progress;
};

} // namespace

class DemoUpgradeTest : public QObject
{
    Q_OBJECT
private:
    QTemporaryDir m_folder;
    const QByteArray m_firmware =
        "BRELM-FIRMWARE 1\nmodel=B-2230-IR\nversion=2.900.0\n\n" + QByteArray(1000, '\1');

    QByteArray file(const QByteArray &content) const
    {
        const QString path = m_folder.filePath(QStringLiteral("firmware.bin"));
        QFile written(path);
        return written.open(QFile::WriteOnly) && written.write(content) == content.size() ? path.toLocal8Bit()
                                                                                          : QByteArray();
    }

    std::int64_t start(const TestSite &test, const Login &login, Told &told) const
    {
        return test.net->NetStartUpgrade(login.handle, file(m_firmware).constData(), &Told::handle, &told,
                                         wait);
    }

    /// Brings an upgrade to where nothing more happens without another step.
    static QString goTo(const TestSite &test, Told &told, UpgradePhase phase, int percent)
    {
        QString last;
        for (int step = 0; step < 400 && test.clock->waitForWaiters(1, 1s); ++step) {
            const QStringList lines = told.lines();
            last = lines.isEmpty() ? QString() : lines.last();
            const int reached = last.section(u' ', 0, 0).toInt();
            const int at = last.section(u' ', 1, 1).toInt();
            if (reached > static_cast<int>(phase) || (reached == static_cast<int>(phase) && at >= percent))
                break;
            test.clock->advance(DeviceUpgrade::usualSending / 100);
        }
        return told.waitFor(phase, percent);
    }

private Q_SLOTS:
    void aDeviceComesBackWithTheNewVersion()
    {
        const TestSite test(threeCameras);
        const Login login(*test.net, "192.168.1.1", 8800);
        Told told;
        const std::int64_t handle = start(test, login, told);
        QVERIFY(handle != 0);
        QCOMPARE(goTo(test, told, UpgradePhase::Sending, 50), "1 50 0");
        QVERIFY(start(test, login, told) == 0);
        QCOMPARE(netError(*test.net), NetError::DeviceBusy);
        QCOMPARE(goTo(test, told, UpgradePhase::Writing, 1).left(2), "2 ");
        QVERIFY(!test.net->NetStopUpgrade(handle));
        QCOMPARE(netError(*test.net), NetError::NotSupported);
        test.clock->advance(DeviceUpgrade::writing);
        QCOMPARE(told.waitFor(UpgradePhase::Done, 100), "3 100 0");
        QCOMPARE(told.lines().first(), "1 1 0");
        QVERIFY(test.net->NetStopUpgrade(handle)); // frees the handle
        QVERIFY(!test.net->NetStopUpgrade(handle));
        QCOMPARE(lastError(*test.net), DemoError::UnknownHandle);
        QCOMPARE(test.found(2s).size(), 2);
        test.clock->advance(usualReboot);
        QCOMPARE(test.found(2s).size(), 3);
        QCOMPARE(test.site->device(camera(1, wait).mac)->version, "2.900.0");
    }

    void aFileOnItsWayIsDropped_data()
    {
        QTest::addColumn<bool>("byLogout");
        QTest::newRow("by a stop") << false;
        QTest::newRow("by the end of the session") << true;
    }

    void aFileOnItsWayIsDropped()
    {
        QFETCH(bool, byLogout);
        const TestSite test(threeCameras);
        const Login login(*test.net, "192.168.1.1", 8800);
        Told told;
        const std::int64_t handle = start(test, login, told);
        goTo(test, told, UpgradePhase::Sending, 99);
        QVERIFY(byLogout ? test.net->NetLogout(login.handle) : test.net->NetStopUpgrade(handle));
        const qsizetype count = told.lines().size();
        test.clock->advance(60s);
        QCOMPARE(told.lines().size(), count);
        QCOMPARE(test.site->device(camera(1, wait).mac)->version, "2.840.1");
        QCOMPARE(test.found(2s).size(), 3);
    }

    void aDeviceThatWritesGoesOnUnheard()
    {
        const TestSite test(threeCameras);
        const Login login(*test.net, "192.168.1.1", 8800);
        Told told;
        start(test, login, told);
        goTo(test, told, UpgradePhase::Writing, 1);
        // Its session is there no more, so what the device does is not reached through it.
        QVERIFY(test.net->NetLogout(login.handle));
        const qsizetype count = told.lines().size();
        test.clock->advance(DeviceUpgrade::writing);
        QTRY_COMPARE(test.site->device(camera(1, wait).mac)->version, "2.900.0");
        QCOMPARE(told.lines().size(), count);
    }

    void faults_data()
    {
        QTest::addColumn<FaultSetting>("fault");
        QTest::addColumn<QString>("last");
        QTest::addColumn<QString>("version");
        QTest::newRow("fails") << FaultSetting{Fault::UpgradeFailsAt, 47} << "4 0 800000a2"
                               << "2.840.1";
        QTest::newRow("fails in the writing") << FaultSetting{Fault::UpgradeFailsAt, 100} << "4 0 800000a2"
                                              << "2.840.1";
        QTest::newRow("hangs") << FaultSetting{Fault::UpgradeHangsAt, 63} << "1 62 0"
                               << "2.840.1";
        QTest::newRow("hangs in the writing") << FaultSetting{Fault::UpgradeHangsAt, 100} << "1 100 0"
                                              << "2.840.1";
        QTest::newRow("keeps its version") << FaultSetting{Fault::UpgradeKeepsVersion} << "3 100 0"
                                           << "2.840.1";
        QTest::newRow("does not return") << FaultSetting{Fault::UpgradeNeverReturns} << "3 100 0"
                                         << "2.900.0";
        QTest::newRow("goes away") << FaultSetting{Fault::NoAnswer} << "4 0 80000002"
                                   << "2.840.1";
    }

    void faults()
    {
        QFETCH(FaultSetting, fault);
        QFETCH(QString, last);
        const TestSite test(threeCameras);
        const Login login(*test.net, "192.168.1.1", 8800);
        Told told;
        QVERIFY(start(test, login, told) != 0);
        test.site->setFault(camera(1, wait).mac, fault);
        for (int step = 0; step < 20; ++step) {
            if (test.clock->waiters() > 0)
                test.clock->advance(1s);
            QTRY_VERIFY_WITH_TIMEOUT(
                test.clock->waiters() > 0 || told.lines().value(told.lines().size() - 1) == last, 10000);
        }
        QTRY_COMPARE(told.lines().last(), last);
        QTEST(test.site->device(camera(1, wait).mac)->version, "version");
        test.clock->advance(1h);
        QCOMPARE(test.found(2s).size(),
                 fault.fault == Fault::UpgradeNeverReturns || fault.fault == Fault::NoAnswer ? 2 : 3);
    }

    void refusals()
    {
        const TestSite test(threeCameras);
        const Login login(*test.net, "192.168.1.1", 8800);
        Told told;
        const auto refusal = [&](const QByteArray &path) {
            return test.net->NetStartUpgrade(login.handle, path.constData(), &Told::handle, &told, wait) == 0
                       ? netError(*test.net)
                       : NetError::None;
        };
        QCOMPARE(refusal("/no/such/file"), NetError::UnusableFile);
        QCOMPARE(refusal(file("")), NetError::UnusableFile);
        QCOMPARE(refusal(file("BRELM-FIRMWARE 1\nmodel=C-1\nversion=2.9\n\n")), NetError::FirmwareRefused);
        QCOMPARE(refusal(file("BRELM-FIRMWARE 9\n\n")), NetError::FirmwareRefused);
        QVERIFY(test.net->NetStartUpgrade(login.handle, file(m_firmware).constData(), nullptr, nullptr,
                                          wait) == 0);
        QCOMPARE(lastError(*test.net), DemoError::NoHandler);
        test.site->setFault(camera(1, wait).mac, {Fault::UpgradeBusy});
        QCOMPARE(refusal(file(m_firmware)), NetError::DeviceBusy);
        test.site->clearFault(camera(1, wait).mac, Fault::UpgradeBusy);
        // It is told only at the end that this is no firmware.
        QCOMPARE(refusal(file("something")), NetError::None);
        QCOMPARE(goTo(test, told, UpgradePhase::Failed, 0), "4 0 800000a1");
        QVERIFY(test.net->NetLogout(login.handle));
        QCOMPARE(refusal(file(m_firmware)), static_cast<NetError>(DemoError::UnknownHandle));
    }

    void theEndOfTheLibraryEndsAll()
    {
        const TestSite test(threeCameras);
        const Login login(*test.net, "192.168.1.1", 8800);
        const Login other(*test.net, "192.168.1.2", 8800);
        Told told;
        Told otherTold;
        start(test, login, told);
        goTo(test, told, UpgradePhase::Writing, 1);
        QVERIFY(start(test, other, otherTold) != 0);
        test.net->NetCleanup();
        QCOMPARE(test.clock->waiters(), 0);
    }
};

QTEST_GUILESS_MAIN(DemoUpgradeTest)
#include "tst_demoupgrade.moc"
