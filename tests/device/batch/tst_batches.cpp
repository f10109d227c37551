#include "device/batch/batchresultmodel.h"
#include "device/models/devicetablemodel.h"
#include "device/registry/upgradetools.h"
#include "tests/datatable.h"
#include "tests/device/batch/batchsite.h"

#include <QElapsedTimer>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QThreadPool>

#include <mutex>

namespace {

constexpr int notDone = BatchReport::NotDone;
constexpr int networkFailure = 5;

QStringList ipportsOf(const QList<sdk::demo::SceneDevice> &devices)
{
    QStringList names;
    for (const sdk::demo::SceneDevice &device : devices)
        names.append(ipportOf(device));
    return names;
}

class NoWatcher : public BatchWatcher
{
public:
    void started(std::size_t /*index*/) override {}
    void finished(std::size_t /*index*/, const StepOutcome & /*outcome*/) override {}
    void paused() override {}
    void ended() override {}
};

} // namespace

/// Batches on a simulated site, started and observed as QML does.
class TestBatches : public QObject, private BatchSite
{
    Q_OBJECT
private:
    QTemporaryDir m_folder;

    Batch *setStandard(const QStringList &ipports) const
    {
        return m_batches->configureSystem("dh", "videoStandard", "Standard", {{"videoStandard", 1}}, ipports);
    }

private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    /// Its reason would only be shown at the end.
    void aStepThatEndsWithoutItsWorkIsShown()
    {
        QSemaphore gate;
        const auto end = qScopeGuard([&gate] { gate.release(); });
        Batch *batch =
            m_batches->start({.family = "dh",
                              .title = "Work",
                              .devices = {{.name = "a", .identity = "a", .ipport = "a", .title = ""},
                                          {.name = "b", .identity = "b", .ipport = "b", .title = ""}},
                              .policy = {.maximumParallel = 1},
                              .stepOf = [&gate](const BatchDevice &device) -> DeviceStep {
                                  if (device.name == "a")
                                      return [](const StepControl &) {
                                          return StepOutcome{.result = notDone, .text = "no session"};
                                      };
                                  return [&gate](const StepControl &) {
                                      gate.acquire();
                                      return StepOutcome();
                                  };
                              }});
        QTRY_COMPARE(batch->done(), 1);
        BatchResultModel model;
        model.setBatch(batch);
        QCOMPARE(model.get(0).value("device").toString(), "a");
        QVERIFY(model.get(0).value("result").toString().contains("no session"));
        QCOMPARE(model.get(1).value("state").toInt(), int(BatchResultModel::ToCome));
        gate.release();
        QTRY_VERIFY(!batch->isRunning());
    }

    void everyDeviceIsReported_data()
    {
        const auto row = dataTable<sdk::demo::Fault, int>({"fault", "number"});
        row("one does not respond", sdk::demo::Fault::NoAnswer, 0);
        row("one responds after its deadline", sdk::demo::Fault::SlowAnswers, 60000);
    }

    void everyDeviceIsReported()
    {
        QFETCH(const sdk::demo::Fault, fault);
        QFETCH(const int, number);
        m_site->site->setFault(m_devices.at(1).mac, {.fault = fault, .number = number});
        m_site->site->setFault(m_devices.at(2).mac, {.fault = sdk::demo::Fault::WrongPassword});
        Batch *batch = setStandard(ipportsOf(m_devices));
        QVERIFY(batch);
        const QSignalSpy resulted(batch, &Batch::resulted);
        QVERIFY(m_site->factory->busyState()->refusal(BusyState::Search).contains("Standard"));
        QTRY_VERIFY(!batch->isRunning());
        QVERIFY(m_site->factory->busyState()->refusal(BusyState::Search).isEmpty());
        QHash<QString, int> results;
        for (const QVariantList &group : resulted) {
            const QStringList devices = group.at(0).toStringList();
            const auto values = group.at(1).value<QList<int>>();
            for (qsizetype index = 0; index < devices.size(); ++index)
                results.insert(devices.at(index), values.at(index));
        }
        QCOMPARE(results, (QHash<QString, int>{{ipportOf(m_devices.at(0)), 0},
                                               {ipportOf(m_devices.at(1)), networkFailure},
                                               {ipportOf(m_devices.at(2)), 2},
                                               {ipportOf(m_devices.at(3)), 0}}));
        QCOMPARE(batch->done(), 4);
        QCOMPARE(batch->failedDevices(), (QStringList{ipportOf(m_devices.at(1)), ipportOf(m_devices.at(2))}));
        // A further attempt with the same password could lock the account.
        QCOMPARE(batch->retryableDevices(), QStringList{ipportOf(m_devices.at(1))});

        QVERIFY(batch->canRetry(identityOf(1)) && !batch->canRetry(identityOf(2)) &&
                !batch->canRetry(identityOf(0)));
        QCOMPARE(m_batches->retryDevice(batch, identityOf(2)), nullptr);

        m_site->site->clearFault(m_devices.at(1).mac, fault);
        Batch *again = m_batches->retryDevice(batch, identityOf(1));
        QVERIFY(again);
        QTRY_VERIFY(!again->isRunning());
        QCOMPARE(again->report()->succeeded(), 1);
        // The devices that the retry skipped are remembered, and succeed with another account.
        QCOMPARE(again->failedBefore(), 1);
        QCOMPARE(again->failedIdentities(), QStringList(identityOf(2)));
        QCOMPARE(m_batches->retry(again), nullptr);
        QCOMPARE(m_batches->kept().size(), 2);
        m_site->site->clearFault(m_devices.at(2).mac, sdk::demo::Fault::WrongPassword);
        m_site->factory->setDefaultAccount("dh", "admin", "Better-2025");
        QCOMPARE(again->retryableDevices(), QStringList(ipportOf(m_devices.at(2))));
    }

    /// Each camera gets its own name. A name that is too long for a device is not sent.
    void camerasGetTheirNames()
    {
        const QStringList names = {"Hall 1", "Hall 2", QString(300, 'x'), "厅 4"};
        const QSignalSpy listChanged(m_site->factory.get(), &CDeviceFactory::signalAddSingleDeviceToTable);
        Batch *batch = m_batches->nameCameras("dh", "Names", ipportsOf(m_devices), names);
        QVERIFY(batch);
        QTRY_VERIFY(!batch->isRunning());
        QCOMPARE(batch->report()->succeeded(), 3);
        QCOMPARE(batch->failedDevices(), QStringList{ipportOf(m_devices.at(2))});
        QHash<QString, QString> written;
        for (const sdk::demo::RecordedRequest &request : m_site->site->requests().of("NetSetItem"))
            written.insert(request.mac, request.request.value("name").toString());
        QCOMPARE(written, (QHash<QString, QString>{{m_devices.at(0).mac, "Hall 1"},
                                                   {m_devices.at(1).mac, "Hall 2"},
                                                   {m_devices.at(3).mac, "厅 4"}}));
        QVERIFY(!listChanged.isEmpty()); // other pages show the names
        QCOMPARE(m_site->factory->backEnd("dh")->deviceRow(identityOf(3)).value("name").toString(), "厅 4");
        QCOMPARE(batch->entries().at(3).outcome.text, "厅 4");
    }

    void aSecondBatchWaitsAndAStoppedOneReportsTheRest()
    {
        m_site->factory->systemConfig("dh", "loginCheck", {{"password", "secret1"}}, ipportsOf(m_devices));
        m_site->net->passwordGate = std::make_unique<QSemaphore>();
        m_site->net->passwordsAtGate = 0;
        Batch *batch = m_batches->configureSystem("dh", "modifyPassword", "Passwords",
                                                  {{"password", "Better-2025"}}, ipportsOf(m_devices));
        QTRY_COMPARE(m_site->net->passwordsAtGate, 2); // two at a time
        const QSignalSpy refused(m_batches.get(), &Batches::refused);
        QCOMPARE(setStandard(ipportsOf(m_devices)), nullptr);
        QVERIFY(refused.first().first().toString().contains("Passwords"));
        const QSignalSpy resulted(batch, &Batch::resulted);
        batch->stop();
        m_site->net->passwordGate->release(4);
        QTRY_VERIFY(!batch->isRunning());
        QCOMPARE(resulted.last().first().toStringList(), ipportsOf(m_devices).mid(2));
        QCOMPARE(batch->report()->succeeded(), 2);
        QCOMPARE(batch->report()->devicesWith(notDone), ipportsOf(m_devices).mid(2));
        QCOMPARE(askedMacs("NetModifyPassword").size(), 2);
    }

    void aSearchKeepsTheRowsOfFailedDevices()
    {
        const QString mac = m_devices.at(1).mac;
        m_site->site->setFault(mac, {.fault = sdk::demo::Fault::NoAnswer});
        Batch *batch = setStandard(ipportsOf(m_devices));
        QTRY_VERIFY(!batch->isRunning());
        m_site->site->changeDevice(mac, [](auto &device, const auto &) { device.address = "10.9.9.9"; });
        QVERIFY(search());
        DeviceTableModel table;
        table.setFailedMarks(m_batches->failedMarks());
        table.setDeviceFactory(m_site->factory.get());
        table.setOnlyFailed(true);
        QCOMPARE(table.failedCount(), 1);
        QCOMPARE(table.get(0).value("mac").toString(), mac);
        QVERIFY(table.get(0).value("failure").toString().count('\n') ==
                1); // the loss of the device is reported as well

        m_site->site->clearFault(mac, sdk::demo::Fault::NoAnswer);
        QVERIFY(search());
        table.refresh();
        QCOMPARE(table.get(0).value("ipport").toString(), "10.9.9.9:37777");
        m_batches->failedMarks()->clear();
        table.refresh();
        QCOMPARE(table.rowCount(), 4);
    }

    /// The device was reached, so the next attempt may succeed.
    void aDeviceLostAfterItsLoginCanBeRetried()
    {
        const QString mac = m_devices.at(0).mac;
        m_site->net->beforeWriting = [&] {
            m_site->site->setFault(mac, {.fault = sdk::demo::Fault::NoAnswer});
        };
        Batch *batch = setStandard(ipportsOf(m_devices).first(1));
        QTRY_VERIFY(!batch->isRunning());
        m_site->net->beforeWriting = nullptr;
        QCOMPARE(batch->entries().first().outcome.result, 999);
        QVERIFY(!batch->textOf(ipportOf(m_devices.at(0))).isEmpty());
        QCOMPARE(batch->retryableDevices(), ipportsOf(m_devices).first(1));
        m_site->site->clearFault(mac, sdk::demo::Fault::NoAnswer);
        m_site->site->setFault(mac, {.fault = sdk::demo::Fault::RefusesItem,
                                     .number = static_cast<int>(sdk::videoStandardItem)});
        Batch *refused = m_batches->retry(batch);
        QVERIFY(refused);
        QTRY_VERIFY(!refused->isRunning());
        QCOMPARE(refused->entries().first().outcome.result, 999);
        QCOMPARE(refused->retryableDevices(), QStringList()); // the device has refused
    }

    /// The password may have changed, so the user is informed that the device did not respond.
    void aDeviceLostDuringAPasswordChangeIsReported()
    {
        m_site->factory->systemConfig("dh", "loginCheck", {{"password", "secret1"}}, ipportsOf(m_devices));
        m_site->site->setFault(m_devices.at(0).mac, {.fault = sdk::demo::Fault::NoAnswer});
        const auto changePasswords = [this] {
            return m_batches->configureSystem("dh", "modifyPassword", "Passwords",
                                              {{"password", "Better-2025"}}, ipportsOf(m_devices).first(1));
        };
        Batch *batch = changePasswords();
        QTRY_VERIFY(!batch->isRunning());
        QVERIFY(!batch->textOf(ipportOf(m_devices.at(0))).isEmpty());
        QCOMPARE(batch->retryableDevices(), ipportsOf(m_devices).first(1));
    }

    void aStepEndsAtItsDeadline()
    {
        m_site->site->setFault(m_devices.at(1).mac, {.fault = sdk::demo::Fault::SlowAnswers, .number = 2000});
        BatchPlan plan{.family = "dh", .title = "Standard", .policy = m_batches->usualPolicy()};
        plan.devices = batchDevices(*m_site->factory, "dh", ipportsOf(m_devices));
        plan.policy.maximumParallel = 1; // the clock advances while one device is waiting
        plan.policy.deadline = std::chrono::seconds(1);
        plan.stepOf = [this](const BatchDevice &device) {
            return m_site->factory->backEnd("dh")->systemStep("videoStandard", {{"videoStandard", 1}},
                                                              device.ipport);
        };
        Batch *batch = m_batches->start(std::move(plan));
        const QSignalSpy resulted(batch, &Batch::resulted);
        QTRY_VERIFY(!batch->isRunning());
        QCOMPARE(batch->report()->succeeded(), 3);
        const QString late = ipportOf(m_devices.at(1));
        QStringList reported;
        for (const QVariantList &group : resulted)
            reported += group.first().toStringList();
        QCOMPARE(reported.count(late), 1);
        QCOMPARE(batch->report()->devicesWith(notDone), QStringList(late));
        QVERIFY(!batch->textOf(late).isEmpty()); // it had started
        QCOMPARE(batch->retryableDevices(), QStringList(late));
        QVERIFY(
            !askedMacs("NetSetItem").contains(m_devices.at(1).mac)); // nothing is written after the deadline
    }

    void aRefusalIsExplained_data()
    {
        const auto row = dataTable<sdk::NetError, QString, bool>({"error", "text", "isRetryable"});
        row("not supported", sdk::NetError::NotSupported, resultName(resultCode(LoginResult::NotSupported)),
            false);
        row("invalid", sdk::NetError::InvalidValue, resultName(resultCode(LoginResult::InvalidValue)), false);
        row("without a reason", sdk::NetError::Refused, "", false);
        row("no response", sdk::NetError::ConnectTimeout, CDeviceDH::tr("设备没有应答"), true);
    }

    void aRefusalIsExplained()
    {
        QFETCH(const sdk::NetError, error);
        QFETCH(const bool, isRetryable);
        m_site->net->writeError = error;
        const QString device = ipportOf(m_devices.at(0));
        Batch *batch = setStandard({device});
        QTRY_VERIFY(!batch->isRunning());
        QCOMPARE(batch->entries().first().outcome.result, 999);
        QTEST(batch->textOf(device), "text");
        QCOMPARE(batch->retryableDevices(), isRetryable ? QStringList(device) : QStringList());
        QVERIFY(m_batches->failedMarks()->messagesOf(identityOf(0)).contains(batch->textOf(device)));
    }

    void closingDoesNotWaitForDevices_data()
    {
        const auto row = dataTable<QString>({"kind"});
        for (const char *kind : {"system", "passwords", "addresses", "back", "copy", "snapshots"})
            row(kind, kind);
    }

    /// No device responds and the clock is stopped, so no request times out.
    void closingDoesNotWaitForDevices()
    {
        QFETCH(const QString, kind);
        const QStringList ipports = ipportsOf(m_devices);
        Batch *changed = nullptr;
        if (kind == "back") {
            changed = m_batches->changeAddresses("dh", "Addresses", macs(), wantedAddresses(),
                                                 "255.255.255.0", "192.168.1.1", false);
            QTRY_VERIFY(!changed->isRunning());
            QVERIFY(QThreadPool::globalInstance()->waitForDone(30000)); // the rows have been queried again
        }
        if (kind == "copy" || kind == "snapshots")
            QCOMPARE(m_site->login(m_devices.at(0)), 0);
        if (kind == "copy")
            m_site->factory->getEncodeCaps("dh");
        m_site->site->requests().clear();
        m_site->stopTime();
        for (const QString &mac : macs())
            m_site->site->setFault(mac, {.fault = sdk::demo::Fault::NoAnswer});
        const QHash<QString, std::function<Batch *()>> starts = {
            {"system",
             [&] {
                 return setStandard(ipports);
             }},
            {"passwords",
             [&] {
                 return m_batches->initialiseDevices("dh", "Passwords", macs(), "admin", "Better-2025");
             }},
            {"addresses",
             [&] {
                 return m_batches->changeAddresses("dh", "Addresses", macs(), wantedAddresses(),
                                                   "255.255.255.0", "192.168.1.1", false);
             }},
            {"back",
             [&] {
                 return m_batches->putAddressesBack(changed, "Back", macs());
             }},
            {"copy",
             [&] {
                 return m_batches->copyEncodeSettings("dh", "Copy", ipports.mid(1));
             }},
            {"snapshots", [&] {
                 return m_batches->takeSnapshots("dh", "Snapshots", ipports.first(), {"1"}, m_folder.path());
             }}};
        const Batch *batch = starts.value(kind)();
        QVERIFY(batch);
        QTRY_VERIFY(m_site->clock().waiters() > 0);
        QVERIFY(batch->isRunning());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("The application closes during .* not done: "));
        QElapsedTimer timer;
        timer.start();
        m_batches->stopForExit();
        m_batches.reset();
        m_site->factory.reset();
        QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
    }

    /// The application does not wait for the devices. The log names those that were not processed.
    void closingDuringABatchLogsTheRest()
    {
        m_site->factory->systemConfig("dh", "loginCheck", {{"password", "secret1"}}, ipportsOf(m_devices));
        m_site->net->passwordGate = std::make_unique<QSemaphore>();
        m_site->net->passwordsAtGate = 0;
        const Batch *batch = m_batches->configureSystem("dh", "modifyPassword", "Passwords",
                                                        {{"password", "Better-2025"}}, ipportsOf(m_devices));
        QTRY_COMPARE(m_site->net->passwordsAtGate, 2);
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression("Passwords.*not done: " + ipportsOf(m_devices).join(", ")));
        m_batches->stopForExit();
        QVERIFY(batch->isStopping());
        m_site->net->passwordGate->release(2);
        m_site->engine->end();
        QCOMPARE(askedMacs("NetModifyPassword").size(), 2);
    }

    /// The user selects a device, not an address.
    void aRetryReachesTheSameDevice()
    {
        const QString failed = m_devices.at(0).mac;
        m_site->site->setFault(failed, {.fault = sdk::demo::Fault::NoAnswer});
        Batch *batch = setStandard({ipportOf(m_devices.at(0)), ipportOf(m_devices.at(1))});
        QTRY_VERIFY(!batch->isRunning());
        QVERIFY(batch->canRetry(identityOf(0)));

        m_site->site->clearFault(failed, sdk::demo::Fault::NoAnswer);
        for (const auto &[device, address] : {std::pair(0, "192.168.1.40"), std::pair(2, "192.168.1.1")})
            m_site->site->changeDevice(
                m_devices.at(device).mac,
                [address = address](auto &moved, const auto &) { moved.address = address; });
        QVERIFY(search());
        m_site->site->requests().clear();
        const QSignalSpy refused(m_batches.get(), &Batches::refused);
        QCOMPARE(m_batches->retry(batch), nullptr);
        QVERIFY(refused.value(0).value(0).toString().contains("192.168.1.1:"));
        QCOMPARE(askedMacs("NetLoginSecure"), QStringList());
    }

    void theTimeLeftIsEstimatedAfterEachResult()
    {
        const auto clock = std::make_shared<sdk::demo::SteppableClock>();
        BatchEngine engine(clock);
        QSemaphore released;
        BatchPlan plan;
        plan.policy.maximumParallel = 1;
        for (const QString &name : QStringList{"a", "b", "c", "d"})
            plan.devices.append({.name = name, .identity = name, .ipport = {}, .title = {}, .login = name});
        plan.stepOf = [&released](const BatchDevice &) {
            return [&released](const StepControl &) {
                released.acquire();
                return StepOutcome{.result = BatchReport::Succeeded, .text = {}};
            };
        };
        Batch batch(engine, plan);
        const auto end = qScopeGuard([&released] { released.release(4); }); // steps still run after a failure
        QVERIFY(batch.start());
        QCOMPARE(batch.secondsLeft(), -1);
        clock->advance(std::chrono::seconds(3));
        released.release();
        QTRY_COMPARE(batch.done(), 1);
        QCOMPARE(batch.secondsLeft(), 9);
        clock->advance(std::chrono::seconds(5));
        QCOMPARE(batch.secondsLeft(), 4);
        clock->advance(std::chrono::seconds(5)); // the estimate was too short
        QCOMPARE(batch.secondsLeft(), -1);
        released.release();
        QTRY_COMPARE(batch.done(), 2);
        QCOMPARE(batch.secondsLeft(), 13);
        released.release(2);
        QTRY_VERIFY(!batch.isRunning());
        QCOMPARE(batch.secondsLeft(), -1);
    }

    void anUpgradingDeviceIsRefusedImmediately()
    {
        const QString mac = m_devices.at(0).mac;
        m_site->factory->updataDeviceInfo("dh", "upgraderes", UpgradeTools::Sending, mac, "");
        const auto upgrade = std::make_shared<QSemaphore>(); // the step may outlive this function
        m_site->engine->start({{.device = mac,
                                .step =
                                    [upgrade](const StepControl &) {
                                        upgrade->acquire();
                                        return StepOutcome();
                                    }}},
                              {.maximumParallel = 1}, std::make_shared<NoWatcher>());
        const auto release =
            qScopeGuard([upgrade] { upgrade->release(); }); // the step must not wait after a failure
        Batch *batch = setStandard(ipportsOf(m_devices));
        QVERIFY(batch);
        QTRY_COMPARE_WITH_TIMEOUT(batch->done(), 4, 30000); // the upgrade still runs
        QCOMPARE(batch->report()->devicesWith(resultCode(LoginResult::Upgrading)),
                 QStringList(ipportOf(m_devices.at(0))));
        QTRY_VERIFY(!batch->isRunning());
    }

    /// Two rows share an address: the page uses the first one, the batch the second one.
    void aStepWaitsForThePageThatUsesItsAddress()
    {
        for (const int slow : {0, 1})
            m_site->site->setFault(m_devices.at(slow).mac,
                                   {.fault = sdk::demo::Fault::SlowAnswers, .number = 1000});
        m_site->site->changeDevice(m_devices.at(1).mac,
                                   [](auto &device, const auto &) { device.address = "192.168.1.1"; });
        QVERIFY(search());
        QStringList others = macs(); // first the one of the second row
        others.removeAll(m_site->factory->getDeviceInfo("dh", "192.168.1.1:37777").value("mac").toString());
        QCOMPARE(others.size(), 3);
        m_site->site->requests().clear();
        m_site->stopTime();
        bool isLoggedIn = false;
        m_site->factory->backEnd("dh")->runForPage(
            m_site->factory->backEnd("dh")->loginStep("192.168.1.1:37777", "admin", "secret1"), {},
            [&isLoggedIn](const PageOutcome &) { isLoggedIn = true; });
        QTRY_VERIFY(!askedMacs("NetLoginSecure").isEmpty()); // the response is delayed

        struct Steps
        {
            std::mutex mutex;
            QStringList begun;
            QSemaphore ends;
        };
        const auto steps = std::make_shared<Steps>();
        const auto release = qScopeGuard([steps] { steps->ends.release(3); });
        const auto begun = [steps] {
            const std::scoped_lock lock(steps->mutex);
            return steps->begun;
        };
        BatchPlan plan{.family = "dh", .title = "Work", .policy = {.maximumParallel = 2}};
        plan.devices = batchDevices(*m_site->factory, "dh", others);
        plan.stepOf = [steps](const BatchDevice &device) {
            return [steps, name = device.name](const StepControl &) {
                {
                    const std::scoped_lock lock(steps->mutex);
                    steps->begun.append(name);
                }
                steps->ends.acquire();
                return StepOutcome();
            };
        };
        const Batch *batch = m_batches->start(std::move(plan));
        QTRY_COMPARE(begun().size(), 2); // the number that may run at the same time
        QVERIFY(!begun().contains(others.first()));
        m_site->letTimePass();
        QTRY_VERIFY(isLoggedIn);
        steps->ends.release(3);
        QTRY_VERIFY(!batch->isRunning());
        QCOMPARE(begun().value(2), others.first());
    }

    void rowsWithTheSameAddressAreOneDevice_data()
    {
        const auto row = dataTable<bool, int>({"isByAddress", "tries"});
        row("reached by address", true, 1);
        row("reached by MAC", false, 2);
    }

    void rowsWithTheSameAddressAreOneDevice()
    {
        QFETCH(const bool, isByAddress);
        std::atomic<int> tries = 0;
        BatchPlan plan{.family = "dh", .title = "Work", .policy = {.maximumParallel = 8}};
        plan.devices = {{.name = "a", .identity = "a", .ipport = "10.0.0.1:80", .title = {}},
                        {.name = "b", .identity = "b", .ipport = "10.0.0.1:80", .title = {}}};
        plan.stepOf = [&tries](const BatchDevice &) {
            return [&tries](const StepControl &) {
                ++tries;
                return StepOutcome{.result = resultCode(LoginResult::WrongPassword), .text = {}};
            };
        };
        plan.isByAddress = isByAddress;
        Batch *batch = m_batches->start(std::move(plan));
        QTRY_VERIFY(!batch->isRunning());
        QTEST(tries.load(), "tries"); // a second attempt would count towards the lock
        QCOMPARE(batch->report()->failed(), 2);
    }

    void anAccountSelectedDuringTheStepIsTriedInTheRetry()
    {
        QSemaphore gate;
        DeviceAccount account{.account = "admin", .password = "old"};
        BatchPlan plan{.family = "dh", .title = "Work", .policy = {.maximumParallel = 1}};
        plan.devices = {{.name = "a", .identity = "a", .ipport = "10.0.0.1:80", .title = {}}};
        plan.accountOf = [&account](const BatchDevice &) {
            return account;
        };
        plan.stepOf = [&gate](const BatchDevice &) {
            return [&gate](const StepControl &) {
                gate.acquire();
                return StepOutcome{.result = resultCode(LoginResult::WrongPassword), .text = {}};
            };
        };
        Batch *batch = m_batches->start(std::move(plan));
        account.password = "new";
        gate.release();
        QTRY_VERIFY(!batch->isRunning());
        QCOMPARE(batch->retryableDevices(), QStringList("a"));
        account.password = "old";
        QCOMPARE(batch->retryableDevices(), QStringList());
    }
};

QTEST_GUILESS_MAIN(TestBatches)
#include "tst_batches.moc"
