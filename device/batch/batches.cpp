#include "device/batch/batches.h"

#include "device/batch/batchresultsfile.h"
#include "device/batch/internal/addresschanges.h"
#include "device/batch/internal/batchresultswriter.h"
#include "device/batch/internal/settingsplans.h"
#include "device/batch/internal/snapshotplan.h"
#include "device/registry/devicefactory.h"
#include "device/registry/mapkeys.h"
#include "device/registry/upgradetools.h"
#include "device/store/devicefilter.h"
#include "device/store/devicerow.h"
#include "device/store/devicestore.h"
#include "device/store/logging.h"

#include <utility>

namespace {

constexpr int wrongPasswordsInARow = 5;

/// Deadline of a step. Each request of the step has its own timeout of up to 5 s.
constexpr std::chrono::milliseconds stepDeadline = std::chrono::seconds(60);

/// Whether the device has refused the account: another attempt would count towards its lock.
bool isAccountRefused(int result)
{
    return result == resultCode(LoginResult::WrongPassword) ||
           result == resultCode(LoginResult::NoSuchAccount) ||
           result == resultCode(LoginResult::AccountLocked);
}

/// The upgrade state in a device's row, an UpgradeTools::Result.
int upgradeOf(CDeviceFactory &factory, const QString &family, const BatchDevice &device)
{
    const QJsonObject row = factory.backEnd(family)->deviceRow(device.identity);
    return row.value(DeviceRowKey::upgraderes).toInt(UpgradeTools::None);
}

} // namespace

Batches::Batches(CDeviceFactory &factory, BatchEngine &engine, std::function<int()> maximumParallel,
                 QObject *parent)
    : QObject(parent), m_factory(factory), m_engine(engine), m_maximumParallel(std::move(maximumParallel)),
      m_results(std::make_unique<BatchResultsWriter>(*factory.busyState()))
{
    connect(m_results.get(), &BatchResultsWriter::written, this, &Batches::resultsSaved);
    // The user may have entered another default account before the search.
    connect(&m_factory, &CDeviceFactory::signalSearchDone, this, &Batches::noteAccounts);
}

Batches::~Batches() = default;

void Batches::keepFailedIn(const std::shared_ptr<DeviceStore> &store)
{
    connect(&m_failedMarks, &FailedMarks::changed, this,
            [this, store] { store->setKept(m_failedMarks.identities()); });
}

void Batches::noteAccounts() const
{
    if (current())
        current()->noteAccounts();
}

std::function<DeviceAccount(const BatchDevice &device)> Batches::rowAccounts(const QString &family) const
{
    return [this, family](const BatchDevice &device) {
        const QVariantMap account = m_factory.accountOf(family, device.identity);
        return DeviceAccount{.account = account.value(AccountKey::account).toString(),
                             .password = account.value(AccountKey::password).toString()};
    };
}

BatchPolicy Batches::usualPolicy() const
{
    return {.maximumParallel = m_maximumParallel(),
            .deadline = stepDeadline,
            .wrongPasswordsInARow = wrongPasswordsInARow};
}

BatchPlan Batches::usualPlan(const QString &family, const QString &title) const
{
    BatchPlan plan;
    plan.family = family;
    plan.title = title;
    plan.policy = usualPolicy();
    plan.accountOf = rowAccounts(family);
    return plan;
}

Batch *Batches::configureSystem(const QString &family, const QString &command, const QString &title,
                                const QVariantMap &data, const QStringList &ipports)
{
    return start(systemPlan(m_factory, usualPlan(family, title), command, data, ipports));
}

Batch *Batches::nameCameras(const QString &family, const QString &title, const QStringList &ipports,
                            const QStringList &names)
{
    return start(cameraNamePlan(m_factory, usualPlan(family, title), ipports, names));
}

Batch *Batches::initialiseDevices(const QString &family, const QString &title, const QStringList &macs,
                                  const QString &account, const QString &password)
{
    return start(initialisationPlan(m_factory, usualPlan(family, title), macs, account, password));
}

Batch *Batches::changeAddresses(const QString &family, const QString &title, const QStringList &macs,
                                const QStringList &addresses, const QString &mask, const QString &gateway,
                                bool dhcp)
{
    AddressChanges::Planned changes =
        AddressChanges(m_factory, m_kept)
            .change(usualPlan(family, title), macs, addresses, mask, gateway, dhcp);
    if (changes.refusal.isEmpty())
        return start(std::move(changes.plan));
    Q_EMIT refused(changes.refusal);
    return nullptr;
}

QVariantList Batches::addressesToPutBack(Batch *batch) const
{
    return batch ? AddressChanges(m_factory, m_kept).entriesToPutBack(*batch) : QVariantList();
}

Batch *Batches::putAddressesBack(Batch *batch, const QString &title, const QStringList &identities)
{
    if (!batch || batch->isRunning() || !mayChangeAddresses())
        return nullptr;
    AddressChanges::Planned changes =
        AddressChanges(m_factory, m_kept).putBack(usualPlan(batch->plan().family, title), *batch, identities);
    if (!changes.refusal.isEmpty())
        Q_EMIT refused(changes.refusal);
    return changes.plan.devices.isEmpty() ? nullptr : start(std::move(changes.plan));
}

Batch *Batches::copyEncodeSettings(const QString &family, const QString &title, const QStringList &ipports)
{
    return start(encodeCopyPlan(m_factory, usualPlan(family, title), ipports));
}

Batch *Batches::takeSnapshots(const QString &family, const QString &title, const QString &ipport,
                              const QStringList &channelNames, const QString &folder)
{
    BatchPlan plan = snapshotPlan(m_factory, usualPlan(family, title), ipport, channelNames, folder);
    return plan.devices.isEmpty() ? nullptr : start(std::move(plan));
}

Batch *Batches::retry(Batch *batch)
{
    return retryWhere(batch, {});
}

Batch *Batches::retryDevice(Batch *batch, const QString &identity)
{
    return identity.isEmpty() ? nullptr : retryWhere(batch, identity);
}

Batch *Batches::retryWhere(Batch *batch, const QString &identity)
{
    if (!batch || batch->isRunning() || (batch->changesAddresses() && !mayChangeAddresses()))
        return nullptr;
    BatchPlan plan = batch->plan();
    plan.devices = batch->devicesToRetry();
    plan.devices.removeIf(
        [&](const BatchDevice &device) { return !identity.isEmpty() && device.identity != identity; });
    if (plan.isByAddress && !batch->changesAddresses())
        removeMoved(plan);
    Batch *again = plan.devices.isEmpty() ? nullptr : start(std::move(plan));
    if (again) {
        again->setRetryOf(batch);
        Q_EMIT retried(batch, again);
    }
    return again;
}

void Batches::removeMoved(BatchPlan &plan)
{
    QStringList moved;
    plan.devices.removeIf([&](const BatchDevice &device) {
        const QJsonObject row = m_factory.backEnd(plan.family)->deviceRow(device.identity);
        const bool isMoved = row.value(DeviceRowKey::ipport).toString() != device.ipport;
        if (isMoved)
            moved.append(device.ipport);
        return isMoved;
    });
    if (!moved.isEmpty())
        Q_EMIT refused(
            tr("%n 台设备的地址已改变，或已不在列表中，没有重试（如 %1）", "", static_cast<int>(moved.size()))
                .arg(moved.constFirst()));
}

void Batches::saveResults(Batch *batch, const QString &path)
{
    QList<BatchRecord> records;
    if (batch)
        records.append({.title = batch->title(), .entries = batch->entries()});
    m_results->write(records, path);
}

void Batches::saveAllResults(const QString &path)
{
    QList<BatchRecord> records;
    for (const Batch *batch : std::as_const(m_kept))
        records.append({.title = batch->title(), .entries = batch->entries()});
    m_results->write(records, path);
}

bool Batches::mayChangeAddresses()
{
    const QString refusal = m_factory.busyState()->refusal(BusyState::ChangeAddress);
    if (!refusal.isEmpty())
        Q_EMIT refused(refusal);
    return refusal.isEmpty();
}

void Batches::stopForExit() const
{
    if (!isRunning())
        return;
    current()->stop();
    QStringList notDone;
    QStringList writing; // devices that continue without the application
    for (const Batch::Entry &entry : current()->entries()) {
        const int upgrade = upgradeOf(m_factory, current()->plan().family, entry.device);
        const bool isWriting = UpgradeTools::isRunning(upgrade) && !UpgradeTools::canStop(upgrade);
        if (!entry.time.isValid())
            (isWriting ? writing : notDone).append(entry.device.ipport);
    }
    QString message = QStringLiteral("The application closes during %1").arg(current()->title());
    if (!notDone.isEmpty())
        message += QStringLiteral(" - not done: ") + notDone.join(QStringLiteral(", "));
    if (!writing.isEmpty())
        message += QStringLiteral(" - still writing firmware: ") + writing.join(QStringLiteral(", "));
    qCWarning(logDevice).noquote() << message;
}

void Batches::addStepBefore(BatchPlan &plan) const
{
    if (!m_stepBefore)
        return;
    plan.stepOf = [stepOf = plan.stepOf, before = m_stepBefore, work = plan.work,
                   usesRowAccount = static_cast<bool>(plan.accountOf)](const BatchDevice &device) {
        const DeviceStep first = before(work, usesRowAccount, device);
        DeviceStep step = stepOf(device);
        if (!first || !step)
            return step;
        return DeviceStep([first, step](const StepControl &control) {
            const StepOutcome outcome = first(control);
            control.noteProgress();
            return isAccountRefused(outcome.result) ? outcome : step(control);
        });
    };
}

bool Batches::mayStart()
{
    if (isRunning())
        Q_EMIT refused(tr("“%1”正在进行，请等待其完成").arg(current()->title()));
    return !isRunning();
}

Batch *Batches::start(BatchPlan plan)
{
    if (!mayStart())
        return nullptr;
    const QHash<QString, QJsonObject> rows = rowsByAddress(m_factory.filterData(plan.family, RowFilter::all));
    for (BatchDevice &device : plan.devices) {
        device.key = workKey(rows.value(device.ipport), device.ipport, device.identity);
        device.isUpgrading =
            !plan.rowsShowIt && UpgradeTools::isRunning(upgradeOf(m_factory, plan.family, device));
    }
    addStepBefore(plan);
    auto *batch = new Batch(m_engine, std::move(plan), this);
    const int work = m_factory.busyState()->begin(
        batch->title(), batch->plan().holdsRows ? BusyState::Rows : BusyState::Program);
    connect(batch, &Batch::finished, this, [this, batch, work] { finish(batch, work); });
    connect(batch, &Batch::resulted, this, [this, batch] {
        // At the end, and when the batch is paused, the pages show the failed devices. Devices that wait for
        // a further step which was cancelled count as well.
        if (!batch->isRunning() || batch->isPaused())
            markFailed(*batch);
    });
    if (!batch->start()) {
        m_factory.busyState()->end(work);
        delete batch;
        Q_EMIT refused(tr("系统资源不足，无法开始"));
        return nullptr;
    }
    for (Batch *earlier : std::as_const(m_kept))
        earlier->releaseSteps();
    m_kept.append(batch);
    if (m_kept.size() > maximumKept)
        m_kept.takeFirst()->deleteLater();
    Q_EMIT currentChanged();
    Q_EMIT runningChanged();
    return batch;
}

void Batches::finish(Batch *batch, int work)
{
    const BatchPlan &plan = batch->plan();
    QStringList reached;
    for (const Batch::Entry &entry : batch->entries()) {
        const int result = entry.outcome.result;
        const bool isReached = result != BatchReport::NotDone && !entry.device.isUpgrading;
        if (isReached)
            reached.append(entry.device.identity);
        else if (plan.notesResults)
            m_factory.updataDeviceInfo(plan.family, DeviceRowKey::res, result, entry.device.identity,
                                       QString());
    }
    if (plan.changesRows)
        m_factory.refreshDevices(plan.family, reached);
    m_factory.busyState()->end(work);
    markFailed(*batch);
    if (!batch->hasRetryable())
        batch->releaseSteps(); // the step maker may hold a password
    Q_EMIT runningChanged();
}

void Batches::markFailed(const Batch &batch)
{
    if (!batch.plan().marksFailed)
        return;
    QList<FailedMarks::Outcome> outcomes;
    outcomes.reserve(batch.entries().size());
    for (const Batch::Entry &entry : batch.entries()) {
        if (!entry.time.isValid() && batch.isRunning()) // not reached yet
            continue;
        outcomes.append({.identity = entry.device.identity,
                         .result = entry.outcome.result,
                         .message = outcomeText(entry.outcome)});
    }
    m_failedMarks.note(batch.plan().work.isEmpty() ? batch.title() : batch.plan().work, batch.title(),
                       outcomes);
}
