#include "device/batch/batches.h"

#include "device/batch/addressorder.h"
#include "device/batch/occupiedaddresses.h"
#include "device/models/modelkeys.h"
#include "device/registry/devicefactory.h"
#include "device/registry/devicefamily.h"
#include "device/registry/mapkeys.h"
#include "device/registry/systemkeys.h"
#include "device/registry/upgradetools.h"
#include "device/store/devicefilter.h"
#include "device/store/devicerow.h"
#include "device/store/devicestore.h"
#include "device/store/logging.h"
#include "sdk/threadpriority.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace {

constexpr int wrongPasswordsInARow = 5;

/// Deadline of a step. Each request of the step has its own timeout of up to 5 s.
constexpr std::chrono::milliseconds stepDeadline = std::chrono::seconds(60);

/// Id of the work of a system command. Both ways to set the clock are one work, as are both steps of a
/// password change.
QString workOf(const QString &command)
{
    if (command == SystemCommand::setTimeByPC || command == SystemCommand::setTimeByManual)
        return QStringLiteral("setTime");
    return command == SystemCommand::loginCheck ? QString(SystemCommand::modifyPassword) : command;
}

/// The values of a system command for the record of changes.
QString valuesOf(const QString &command, const QVariantMap &data)
{
    if (command == SystemCommand::setTimeByManual)
        return data.value(SystemDataKey::time).toString();
    if (command == SystemCommand::ntpConfig && data.value(SystemDataKey::ntpSet).toBool())
        return data.value(SystemDataKey::ntpServer).toString();
    return {};
}

/// Whether the device has refused the account: another attempt would count towards its lock.
bool isAccountRefused(int result)
{
    return result == resultCode(LoginResult::WrongPassword) ||
           result == resultCode(LoginResult::NoSuchAccount) ||
           result == resultCode(LoginResult::AccountLocked);
}

/// Whether the address of a device may have changed although the change has this result.
bool mayBeChanged(int result)
{
    return result == BatchReport::Succeeded || result == resultCode(LoginResult::NetworkFailure) ||
           result == resultCode(LoginResult::Unconfirmed) || result == resultCode(LoginResult::AddressInUse);
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
    : QObject(parent), m_factory(factory), m_engine(engine), m_maximumParallel(std::move(maximumParallel))
{
    m_files.setMaxThreadCount(1);
    // The user may have entered another default account before the search.
    connect(&m_factory, &CDeviceFactory::signalSearchDone, this, &Batches::noteAccounts);
}

Batches::~Batches()
{
    m_files.waitForDone();
}

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

Batch *Batches::configureSystem(const QString &family, const QString &command, const QString &title,
                                const QVariantMap &data, const QStringList &ipports)
{
    QVariantMap values = data;
    if (command == SystemCommand::setTimeByPC)
        values.insert(SystemDataKey::timeOfRequest, true);
    return start(
        {.family = family,
         .title = title,
         .work = workOf(command),
         .devices = batchDevices(m_factory, family, ipports),
         .policy = usualPolicy(),
         .stepOf =
             [this, family, command, values](const BatchDevice &device) {
                 return m_factory.backEnd(family)->systemStep(command, values, device.ipport);
             },
         // A password change uses the old password that the user enters, not the account of the row.
         .accountOf = workOf(command) == SystemCommand::modifyPassword ? nullptr : rowAccounts(family),
         .isByAddress = true,
         .changesRows = command == SystemCommand::resetSystem,
         .changesDevices = command != SystemCommand::readTime && command != SystemCommand::loginCheck &&
                           command != SystemCommand::cancelLogin,
         .values = valuesOf(command, values)});
}

Batch *Batches::nameCameras(const QString &family, const QString &title, const QStringList &ipports,
                            const QStringList &names)
{
    QHash<QString, QString> nameAt;
    for (qsizetype index = 0; index < ipports.size(); ++index)
        nameAt.insert(ipports.at(index), names.value(index));
    return start({.family = family,
                  .title = title,
                  .work = QStringLiteral("channelName"),
                  .devices = batchDevices(m_factory, family, ipports),
                  .policy = usualPolicy(),
                  .stepOf = [this, family, nameAt](const BatchDevice &device) -> DeviceStep {
                      const QString name = nameAt.value(device.ipport);
                      const DeviceStep step = m_factory.backEnd(family)->systemStep(
                          SystemCommand::channelName, {{SystemDataKey::name, name}}, device.ipport);
                      return [step, name](const StepControl &control) {
                          StepOutcome outcome = step(control);
                          if (outcome.result == BatchReport::Succeeded)
                              outcome.text = name; // for the results file
                          return outcome;
                      };
                  },
                  .accountOf = rowAccounts(family),
                  .takeOutcomes =
                      [this, family, nameAt](const QList<BatchOutcome> &outcomes) {
                          for (const auto &[device, outcome] : outcomes) {
                              if (outcome.result == BatchReport::Succeeded)
                                  noteCameraName(family, device, nameAt.value(device.ipport));
                          }
                      },
                  .isByAddress = true});
}

void Batches::noteCameraName(const QString &family, const BatchDevice &device, const QString &name)
{
    const QString type = m_factory.getDeviceInfo(family, device.ipport).value(DeviceRowKey::type).toString();
    if (!isRecorderType(type))
        m_factory.updataDeviceInfo(family, DeviceRowKey::name, name, device.identity, device.ipport);
}

Batch *Batches::initialiseDevices(const QString &family, const QString &title, const QStringList &macs,
                                  const QString &account, const QString &password)
{
    return start({.family = family,
                  .title = title,
                  .devices = batchDevices(m_factory, family, macs),
                  .policy = {.maximumParallel = 1, .deadline = stepDeadline},
                  .stepOf =
                      [this, family, account, password](const BatchDevice &device) {
                          return m_factory.backEnd(family)->initialisationStep(device.name, account,
                                                                               password);
                      },
                  .changesRows = true,
                  .notesResults = true,
                  .values = account});
}

Batch *Batches::changeAddresses(const QString &family, const QString &title, const QStringList &macs,
                                const QStringList &addresses, const QString &mask, const QString &gateway,
                                bool dhcp)
{
    BatchPlan plan;
    plan.family = family;
    plan.title = title;
    plan.devices = batchDevices(m_factory, family, macs);
    QHash<QString, QString> addressOf; // `macs` may contain a device twice
    for (qsizetype index = 0; index < macs.size(); ++index)
        addressOf.insert(macs.at(index), addresses.value(index));
    QHash<QString, AddressSettings> targets;
    for (const BatchDevice &device : std::as_const(plan.devices)) {
        if (dhcp)
            targets.insert(device.identity, {.address = {}, .mask = {}, .gateway = {}, .dhcp = true});
        else
            targets.insert(
                device.identity,
                {.address = addressOf.value(device.name), .mask = mask, .gateway = gateway, .dhcp = false});
    }
    return startAddresses(std::move(plan), targets);
}

QVariantList Batches::addressesToPutBack(Batch *batch) const
{
    QVariantList entries;
    if (!batch)
        return entries;
    for (const Batch::Entry &entry : batch->entries()) {
        if (!mayBeChanged(entry.outcome.result))
            continue;
        const QString &identity = entry.device.identity;
        const AddressSettings before = batch->plan().addressesBefore.value(identity);
        const BatchDevice now = deviceNow(batch->plan(), entry);
        QVariantMap values = {{DeviceRowKey::name, identity},
                              {DeviceRowKey::ipport, now.ipport},
                              {RowKey::action, before.dhcp ? QStringLiteral("DHCP") : before.address},
                              {RowKey::newAddress, before.dhcp ? QString() : before.address}};
        if (m_factory.backEnd(batch->plan().family)->deviceRow(identity).isEmpty()) {
            values.insert(RowKey::title, now.title);
            values.insert(DeviceRowKey::mac, macOf(now));
        }
        entries.append(values);
    }
    return entries;
}

BatchDevice Batches::deviceNow(const BatchPlan &plan, const Batch::Entry &entry) const
{
    if (!m_factory.backEnd(plan.family)->deviceRow(entry.device.identity).isEmpty())
        return batchDevice(m_factory, plan.family, entry.device.identity);
    BatchDevice device = entry.device;
    const QString given = entry.outcome.result == BatchReport::Succeeded ? entry.outcome.text : QString();
    if (!given.isEmpty()) // after a change to DHCP the address is unknown: ":port"
        device.ipport = (given == QLatin1String("DHCP") ? QString() : given) + QLatin1Char(':') +
                        device.ipport.section(QLatin1Char(':'), 1);
    return device;
}

Batch *Batches::putAddressesBack(Batch *batch, const QString &title, const QStringList &identities)
{
    if (!batch || batch->isRunning() || !mayChangeAddresses())
        return nullptr;
    BatchPlan plan;
    plan.family = batch->plan().family;
    plan.title = title;
    const QSet<QString> chosen(identities.cbegin(), identities.cend());
    for (const Batch::Entry &entry : batch->entries()) {
        if (chosen.contains(entry.device.identity))
            plan.devices.append(deviceNow(batch->plan(), entry));
    }
    return plan.devices.isEmpty()
               ? nullptr
               : startAddresses(std::move(plan), batch->plan().addressesBefore, Locating::Before);
}

std::optional<AddressSettings> Batches::settingsBeforeFailure(const QString &identity) const
{
    const QJsonObject row = m_factory.backEnd(dhFamily)->deviceRow(identity);
    if (!row.value(DeviceRowKey::unconfirmed).toBool()) // the device was found again since
        return std::nullopt;
    const auto last = std::find_if(m_kept.crbegin(), m_kept.crend(), [&identity](const Batch *batch) {
        return batch->plan().addressesBefore.contains(identity);
    });
    return last == m_kept.crend() ? std::nullopt
                                  : std::optional((*last)->plan().addressesBefore.value(identity));
}

Batch *Batches::startAddresses(BatchPlan plan, const QHash<QString, AddressSettings> &targets,
                               Locating locating)
{
    QList<AddressChange> changes;
    for (const BatchDevice &device : std::as_const(plan.devices)) {
        const QVariantMap detail = m_factory.getDeviceDetail(plan.family, device.name);
        // Of a device without a row only the address is known; the other values are those of the target.
        const AddressSettings target = targets.value(device.identity);
        const AddressSettings shown = {.address = device.ipport.section(QLatin1Char(':'), 0, 0),
                                       .mask = detail.value(DeviceDetailKey::submask, target.mask).toString(),
                                       .gateway =
                                           detail.value(DeviceDetailKey::gateway, target.gateway).toString(),
                                       .dhcp = detail.value(DeviceDetailKey::dhcp).toBool()};
        const AddressSettings before = settingsBeforeFailure(device.identity).value_or(shown);
        plan.addressesBefore.insert(device.identity, before);
        changes.append({.oldAddress = before.address, .newAddress = targets.value(device.identity).address});
    }
    const AddressOrder order = addressOrder(changes);
    if (!order.circle.isEmpty()) {
        const AddressChange &first = changes.at(order.circle.constFirst());
        Q_EMIT refused(tr("设备之间互换地址（如 %1 与 %2），无法直接修改。请先将其中一台改为其他地址。")
                           .arg(first.oldAddress, first.newAddress));
        return nullptr;
    }
    QList<BatchDevice> ordered;
    for (const qsizetype index : order.order)
        ordered.append(plan.devices.at(index));
    plan.devices = ordered;
    plan.policy = {
        .maximumParallel = 1, .deadline = stepDeadline, .wrongPasswordsInARow = wrongPasswordsInARow};
    // The steps go by MAC, but two rows with one address may be one device, which may refuse the account.
    plan.isByAddress = true;
    plan.accountOf = rowAccounts(plan.family);
    const auto occupied = std::make_shared<OccupiedAddresses>(plan);
    plan.stepOf = [this, family = plan.family, targets, occupied](const BatchDevice &device) -> DeviceStep {
        const AddressSettings target = targets.value(device.identity);
        const DeviceStep step =
            target.dhcp ? m_factory.backEnd(family)->addressStep(device.name, {}, {}, {}, true)
                        : m_factory.backEnd(family)->addressStep(device.name, target.address, target.mask,
                                                                 target.gateway, false);
        return [=](const StepControl &control) {
            if (const auto holder = occupied->holderOf(target.address, device.identity)) {
                if (holder->stays)
                    occupied->stay(device.identity);
                return StepOutcome{.result = holder->stays ? resultCode(LoginResult::AddressInUse)
                                                           : BatchReport::NotDone,
                                   .text = tr("地址 %1 仍由设备 %2 使用").arg(target.address, holder->title)};
            }
            StepOutcome outcome = step(control);
            // After Unconfirmed, a repeated request succeeds if the device can be reached at its new address.
            outcome.hasNoResponse =
                outcome.hasNoResponse || outcome.result == resultCode(LoginResult::Unconfirmed);
            if (outcome.result == BatchReport::Succeeded) {
                occupied->leave(device.identity);
                outcome.text = target.dhcp ? QStringLiteral("DHCP") : target.address; // for the results file
            } else if (!maySucceedLater(outcome)) {
                occupied->stay(device.identity);
            }
            return outcome;
        };
    };
    if (locating == Locating::Before) {
        QStringList names;
        for (const BatchDevice &device : std::as_const(plan.devices))
            names.append(device.name);
        plan.preparation = m_factory.backEnd(plan.family)->locationStep(names);
    }
    plan.work = QStringLiteral("changeAddress");
    plan.changesRows = true;
    plan.notesResults = true;
    return start(std::move(plan));
}

Batch *Batches::copyEncodeSettings(const QString &family, const QString &title, const QStringList &ipports)
{
    return start({.family = family,
                  .title = title,
                  .devices = batchDevices(m_factory, family, ipports),
                  .policy = usualPolicy(),
                  .stepOf = [copyTo = m_factory.backEnd(family)->encodeCopy()](
                                const BatchDevice &device) { return copyTo(device.ipport); },
                  .accountOf = rowAccounts(family),
                  .isByAddress = true});
}

Batch *Batches::takeSnapshots(const QString &family, const QString &title, const QString &ipport,
                              const QStringList &channelNames, const QString &folder)
{
    const QList<DeviceStep> steps = m_factory.backEnd(family)->snapshotSteps(folder);
    const BatchDevice device = batchDevice(m_factory, family, ipport);
    QList<BatchDevice> channels;
    QHash<QString, DeviceStep> stepOfChannel;
    for (qsizetype channel = 0; channel < steps.size(); ++channel) {
        BatchDevice entry = device;
        entry.name = tr("%1 通道 %2").arg(ipport).arg(channel + 1);
        entry.title = channelNames.value(channel);
        stepOfChannel.insert(entry.name, steps.at(channel));
        channels.append(entry);
    }
    if (channels.isEmpty())
        return nullptr;
    return start(
        {.family = family,
         .title = title,
         .devices = channels,
         .policy = {.maximumParallel = 1, .deadline = stepDeadline},
         .stepOf = [stepOfChannel](const BatchDevice &channel) { return stepOfChannel.value(channel.name); },
         .canBeRetried = false, // the snapshot dialog retries single channels itself
         .marksFailed = false,
         .changesDevices = false});
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

/// Removes devices whose row has another address now: another device may have the old address.
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
    saveRecords(records, path);
}

void Batches::saveAllResults(const QString &path)
{
    QList<BatchRecord> records;
    for (const Batch *batch : std::as_const(m_kept))
        records.append({.title = batch->title(), .entries = batch->entries()});
    saveRecords(records, path);
}

void Batches::saveRecords(const QList<BatchRecord> &records, const QString &path)
{
    if (records.isEmpty())
        return;
    const int work = m_factory.busyState()->begin(tr("保存结果"), BusyState::Program);
    m_files.start([this, path, work, records] {
        sdk::giveWayToWindow();
        const QString reason = saveBatchResults(records, path);
        QMetaObject::invokeMethod(
            this,
            [this, path, work, reason] {
                m_factory.busyState()->end(work);
                Q_EMIT resultsSaved(path, reason);
            },
            Qt::QueuedConnection);
    });
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
