#include "device/batch/addingbatches.h"

#include "device/registry/devicefactory.h"
#include "device/registry/devicefamily.h"
#include "device/registry/mapkeys.h"
#include "device/store/devicerow.h"
#include "sdk/threadpriority.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace {

/// Pages read the complete list after each notification of new rows.
constexpr int addedRowsInterval = 1000; // milliseconds

bool isSuccess(const StepOutcome &outcome)
{
    return outcome.result == resultCode(LoginResult::Success);
}

} // namespace

AddingBatches::AddingBatches(CDeviceFactory &factory, Batches &batches, QObject *parent)
    : QObject(parent), m_factory(factory), m_batches(batches)
{
    m_readers.setMaxThreadCount(1);
    m_notifyTimer.setSingleShot(true);
    m_notifyTimer.setInterval(addedRowsInterval);
    connect(&m_notifyTimer, &QTimer::timeout, &m_factory, &CDeviceFactory::signalAddSingleDeviceToTable);
    connect(&m_batches, &Batches::runningChanged, this, &AddingBatches::noteEnd);
}

AddingBatches::~AddingBatches()
{
    m_readers.waitForDone();
}

void AddingBatches::importList(const QString &title, const QString &path, const QString &passphrase)
{
    if (isReading())
        return;
    m_work = m_factory.busyState()->begin(title, BusyState::Rows);
    Q_EMIT readingChanged();
    m_readers.start([this, title, path, passphrase] {
        sdk::giveWayToWindow();
        const auto list = std::make_shared<List>(readList(title, path, passphrase));
        QMetaObject::invokeMethod(
            this, [this, list] { takeList(*list); }, Qt::QueuedConnection);
    });
}

AddingBatches::List AddingBatches::readList(const QString &title, const QString &path,
                                            const QString &passphrase) const
{
    const ImportPlan read = m_factory.backEnd(dhFamily)->importPlan(path, passphrase);
    List list = {.refusal = read.refusal,
                 .isPassphraseRefused = read.isPassphraseRefused,
                 .plan = {.family = dhFamily, .title = title},
                 .positions = {}};
    QHash<QString, DeviceStep> steps; // by the names of the lines
    list.plan.devices.reserve(static_cast<qsizetype>(read.lines.size()));
    for (const ImportLine &line : read.lines) {
        const QString name = tr("第%1行 %2").arg(line.position.number).arg(line.position.address);
        list.positions.insert(name, line.position);
        steps.insert(name, line.step);
        list.plan.devices.append({.name = name,
                                  .identity = line.device,
                                  .ipport = line.device, // of a listed device: set by takeList()
                                  .title = line.title,
                                  .login = line.login});
    }
    list.plan.stepOf = [steps](const BatchDevice &device) {
        return steps.value(device.name);
    };
    return list;
}

void AddingBatches::takeList(List &list)
{
    m_factory.busyState()->end(std::exchange(m_work, 0));
    Q_EMIT readingChanged();
    if (!list.refusal.isEmpty()) {
        Q_EMIT importRefused(list.refusal, list.isPassphraseRefused);
        return;
    }
    for (BatchDevice &device : list.plan.devices) {
        const QJsonObject row = m_factory.backEnd(dhFamily)->deviceRow(device.identity);
        device.ipport = row.value(DeviceRowKey::ipport).toString(device.ipport);
    }
    list.plan.policy = m_batches.usualPolicy();
    list.plan.changesDevices = false;
    list.plan.takeOutcomes = [this](const QList<BatchOutcome> &outcomes) {
        noteRows(outcomes);
    };
    Batch *batch = m_batches.start(std::move(list.plan));
    if (!batch)
        return;
    m_positions = std::move(list.positions);
    Q_EMIT importBegan(batch);
}

QVariantList AddingBatches::importFailures(Batch *batch) const
{
    QVariantList failures;
    if (!batch)
        return failures;
    for (const Batch::Entry &entry : batch->entries()) {
        if (!isSuccess(entry.outcome))
            failures.append(importFailure(m_positions.value(entry.device.name), entry.outcome));
    }
    return failures;
}

Batch *AddingBatches::addDevices(const QString &title, const QVariantList &devices)
{
    BatchPlan plan = {
        .family = dhFamily, .title = title, .policy = m_batches.usualPolicy(), .changesDevices = false};
    QHash<QString, DeviceToAdd> targets; // by the names in the batch
    QHash<QString, QString> identities;
    QHash<std::pair<QString, QString>, qsizetype> accounts; // number of each account: no secret in `login`
    for (const QVariant &value : devices) {
        const QVariantMap values = value.toMap();
        const DeviceToAdd target = deviceToAdd(values);
        BatchDevice device =
            batchDevice(m_factory, dhFamily, QStringLiteral("%1:%2").arg(target.address).arg(target.port));
        const QString identity = values.value(ResultKey::identity).toString();
        if (targets.contains(device.name))
            device.name += QStringLiteral(" (%1)").arg(identity);
        const std::pair account(target.account, target.password);
        const qsizetype login = accounts.value(account, accounts.size());
        accounts.insert(account, login);
        device.login = QString::number(login);
        targets.insert(device.name, target);
        identities.insert(device.name, identity);
        plan.devices.append(device);
    }
    plan.stepOf = [this, targets](const BatchDevice &device) {
        return m_factory.backEnd(dhFamily)->addingStep(targets.value(device.name));
    };
    plan.takeOutcomes = [this, identities](const QList<BatchOutcome> &outcomes) {
        noteRows(outcomes);
        QVariantList results;
        for (const auto &[device, outcome] : outcomes)
            results.append(QVariantMap{
                {ResultKey::identity, identities.value(device.name)},
                {ResultKey::result, outcome.result},
                {ResultKey::message, outcome.text.isEmpty() ? resultName(outcome.result) : outcome.text},
            });
        Q_EMIT tried(results);
    };
    return m_batches.start(std::move(plan));
}

void AddingBatches::noteRows(const QList<BatchOutcome> &outcomes)
{
    if (std::none_of(outcomes.cbegin(), outcomes.cend(),
                     [](const BatchOutcome &entry) { return isSuccess(entry.outcome); }))
        return;
    m_hasNewRows = true;
    if (!m_notifyTimer.isActive())
        m_notifyTimer.start();
}

void AddingBatches::noteEnd()
{
    if (m_batches.isRunning() || !std::exchange(m_hasNewRows, false))
        return;
    m_notifyTimer.stop();
    m_factory.releaseUnneededP2PPorts();
    Q_EMIT m_factory.signalAddSingleDeviceToTable();
}
