#include "device/batch/upgradebatches.h"

#include "device/registry/devicefactory.h"
#include "device/registry/devicefamily.h"
#include "device/registry/upgradetools.h"
#include "device/store/devicerow.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace {

constexpr int notifyInterval = 250;            // milliseconds
constexpr qsizetype maximumNotifiedRows = 500; // for more rows, the complete list is read

/// Step of an uninitialised device, which the preview shows as skipped: sends no request.
StepOutcome skipUninitialised(const StepControl & /*control*/)
{
    return {.result = BatchReport::NotInitialised, .text = {}};
}

/// The steps of a document's lines; each can be taken once. A retry makes the step from the row or from the
/// line that the back end keeps.
class DocumentSteps
{
public:
    explicit DocumentSteps(CDeviceFactory &factory) : m_factory(factory) {}

    void add(const BatchDevice &device, const DeviceStep &step) { m_steps.insert(device.name, step); }
    [[nodiscard]] DeviceStep take(const BatchDevice &device)
    {
        const DeviceStep step = m_steps.take(device.name);
        return step ? step : m_factory.backEnd(dhFamily)->repeatedDocumentStep(device.identity);
    }

private:
    CDeviceFactory &m_factory;
    QHash<QString, DeviceStep> m_steps; ///< by the name of the line
};

} // namespace

UpgradeBatches::UpgradeBatches(CDeviceFactory &factory, Batches &batches,
                               std::function<int()> maximumParallel, QObject *parent)
    : QObject(parent), m_factory(factory), m_batches(batches), m_maximumParallel(std::move(maximumParallel))
{
    m_notifyTimer.setSingleShot(true);
    m_notifyTimer.setInterval(notifyInterval);
    connect(&m_notifyTimer, &QTimer::timeout, this, &UpgradeBatches::notifyRows);
    connect(&m_factory, &CDeviceFactory::signalUpdateSchedule, this, &UpgradeBatches::noteProgress);
    connect(&m_factory, &CDeviceFactory::signalShowUpgradeFinishTip, this, &UpgradeBatches::noteRoundEnd);
    connect(&m_batches, &Batches::retried, this, [this](const Batch *earlier, Batch *again) {
        if (earlier != m_batch)
            return;
        m_isDocumentOpen = m_source == Source::Document;
        follow(again, m_source);
    });
}

QString UpgradeBatches::chooseFile(const QStringList &identities, const QString &path)
{
    const QList<int> refusals = m_factory.backEnd(dhFamily)->setUpgradeFiles(identities, path);
    const auto refused = std::count_if(refusals.cbegin(), refusals.cend(), &UpgradeTools::isFailure);
    if (refused == 0)
        return {};
    const int reason = refusals.constFirst();
    if (refusals.count(reason) == refusals.size())
        return tr("%1：%2").arg(QFileInfo(path).fileName(), UpgradeTools::text(reason));
    //: Of the devices that a file was chosen for.
    return tr("%n 台设备不能用此文件升级，请查看结果", "", static_cast<int>(refused));
}

BatchPlan UpgradeBatches::usualPlan(const QString &title)
{
    BatchPlan plan = {.family = dhFamily, .title = title, .work = QStringLiteral("upgrade")};
    plan.policy = m_batches.usualPolicy();
    plan.policy.maximumParallel = m_maximumParallel();
    plan.policy.deadline = {}; // an upgrade has separate limits
    plan.changesRows = true;
    plan.holdsRows = false;
    plan.takeOutcomes = [this](const QList<BatchOutcome> &outcomes) {
        noteRefusals(outcomes);
    };
    return plan;
}

Batch *UpgradeBatches::start(const QString &title, const QStringList &identities)
{
    BatchPlan plan = usualPlan(title);
    plan.devices = batchDevices(m_factory, dhFamily, identities);
    plan.isByAddress = true;
    plan.accountOf = m_batches.rowAccounts(dhFamily);
    plan.stepOf = [this](const BatchDevice &device) -> DeviceStep {
        const QJsonObject row = m_factory.backEnd(dhFamily)->deviceRow(device.identity);
        if (!row.value(DeviceRowKey::state).toBool(true))
            return &skipUninitialised;
        return m_factory.backEnd(dhFamily)->upgradeStep(device.identity);
    };
    return begin(std::move(plan), Source::List);
}

Batch *UpgradeBatches::startDocument(const QString &title, const QString &path, const QStringList &lines)
{
    if (!m_batches.mayStart()) // checked before the document is opened
        return nullptr;
    QList<int> numbers;
    for (const QString &line : lines)
        numbers.append(line.toInt());
    BatchPlan plan = usualPlan(title);
    const auto steps = std::make_shared<DocumentSteps>(m_factory);
    const QList<UpgradeDocumentStep> upgrades =
        m_factory.backEnd(dhFamily)->upgradeDocumentSteps(path, numbers);
    for (const UpgradeDocumentStep &line : upgrades) {
        BatchDevice device = batchDevice(m_factory, dhFamily, line.device);
        device.name = tr("第%1行 %2").arg(line.line).arg(line.ipport);
        device.ipport = line.ipport;
        steps->add(device, line.step);
        plan.devices.append(device);
    }
    plan.rowsShowIt = true;
    plan.stepOf = [steps](const BatchDevice &device) {
        return steps->take(device);
    };
    m_isDocumentOpen = true; // also if the document is refused
    return begin(std::move(plan), Source::Document);
}

Batch *UpgradeBatches::begin(BatchPlan plan, Source source)
{
    Batch *batch = m_batches.start(std::move(plan));
    if (batch)
        follow(batch, source);
    return batch;
}

void UpgradeBatches::follow(Batch *batch, Source source)
{
    m_batch = batch;
    m_source = source;
    Q_EMIT lastChanged();
    connect(batch, &Batch::finished, this, [this, batch, source] {
        notifyRows();
        const BatchReport &report = *batch->report();
        if (source == Source::List)
            Q_EMIT ended(report.succeeded(), report.failed(), report.notDone());
    });
    notifyRows();
}

void UpgradeBatches::noteRefusals(const QList<BatchOutcome> &outcomes)
{
    for (const auto &[device, outcome] : outcomes) {
        const QJsonObject row = m_factory.backEnd(dhFamily)->deviceRow(device.identity);
        const bool wasAsked =
            row.value(DeviceRowKey::upgraderes).toInt(UpgradeTools::None) != UpgradeTools::Stopped;
        for (const UpgradeTools::Result refusal :
             {UpgradeTools::NotInitialised, UpgradeTools::WrongPassword, UpgradeTools::NoSuchAccount,
              UpgradeTools::AccountLocked}) {
            if ((wasAsked && refusal != UpgradeTools::NotInitialised) ||
                UpgradeTools::batchResult(refusal) != outcome.result)
                continue;
            m_factory.updataDeviceInfo(dhFamily, DeviceRowKey::upgraderes, refusal, device.identity,
                                       device.ipport);
            m_factory.updataDeviceInfo(dhFamily, DeviceRowKey::upgradetext, UpgradeTools::text(refusal),
                                       device.identity, device.ipport);
        }
    }
}

void UpgradeBatches::noteProgress(int percent)
{
    if (m_batch && m_batch->isRunning())
        m_batch->noteProgress(percent / 100.0);
    if (!m_notifyTimer.isActive())
        m_notifyTimer.start();
}

void UpgradeBatches::notifyRows()
{
    m_notifyTimer.stop();
    const QStringList names = m_factory.backEnd(dhFamily)->takeChangedUpgrades();
    if (names.size() > maximumNotifiedRows)
        Q_EMIT listChanged();
    else if (!names.isEmpty())
        Q_EMIT rowsChanged(names);
}

void UpgradeBatches::noteRoundEnd()
{
    const QString text = m_isDocumentOpen ? m_factory.upgradeDocumentResult(dhFamily) : QString();
    if (text.isEmpty()) // not finished yet
        return;
    m_isDocumentOpen = false;
    Q_EMIT documentEnded(text, m_factory.upgradeDocumentSuccesses(dhFamily) > 0);
}
