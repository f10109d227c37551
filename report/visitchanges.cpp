#include "report/visitchanges.h"

#include "device/batch/batches.h"
#include "device/registry/devicefactory.h"
#include "device/registry/devicefamily.h"
#include "device/store/devicerow.h"
#include "report/reporttexts.h"

#include <QFileInfo>

namespace {

const QString upgradeWork = QStringLiteral("upgrade");

/// The step that takes the image of a device before its upgrade.
DeviceStep imageBeforeUpgrade(CDeviceBase &backEnd, const std::shared_ptr<BeforeImages> &images,
                              const BatchDevice &device)
{
    const QString folder = images->claim(device.identity, 0);
    if (folder.isEmpty())
        return {};
    return backEnd.imageStep({.ipport = device.ipport,
                              .folder = folder,
                              .onlyChannel = 0,
                              .tries = BeforeImages::maximumTries,
                              .isBeforeUpgrade = true,
                              .taken = [images, identity = device.identity](int channel, const QString &path,
                                                                            const QString & /*message*/) {
                                  if (!path.isEmpty())
                                      images->add(identity, channel, path);
                              }});
}

} // namespace

VisitChanges::VisitChanges(CDeviceFactory &factory, Batches &batches, ImagesBefore imagesBefore,
                           QObject *parent)
    : QObject(parent), m_factory(factory)
{
    if (imagesBefore == ImagesBefore::Taken)
        requestImages(batches);
    connect(&batches, &Batches::currentChanged, this, [this, &batches] {
        if (batches.current())
            follow(batches.current());
    });
    connect(&factory, &CDeviceFactory::signalSettingWritten, this, &VisitChanges::recordSetting);
}

void VisitChanges::requestImages(Batches &batches)
{
    m_factory.backEnd(dhFamily)->setBeforeImages(m_images);
    batches.setStepBefore([&factory = m_factory, images = m_images](const QString &work, bool usesRowAccount,
                                                                    const BatchDevice &device) -> DeviceStep {
        // The account of a document line may differ from that of the row: no attempt with the latter.
        const QJsonObject row = factory.backEnd(dhFamily)->deviceRow(device.identity);
        const bool mayLogIn = usesRowAccount || row.value(DeviceRowKey::loggedIn).toBool();
        if (work != upgradeWork || !mayLogIn || device.isUpgrading ||
            !row.value(DeviceRowKey::state).toBool(true))
            return {};
        return imageBeforeUpgrade(*factory.backEnd(dhFamily), images, device);
    });
}

QString VisitChanges::versionOf(const QString &identity) const
{
    return m_factory.backEnd(dhFamily)->deviceRow(identity).value(DeviceRowKey::vision).toString();
}

void VisitChanges::follow(Batch *batch)
{
    const BatchPlan &plan = batch->plan();
    if (!plan.changesDevices)
        return;
    QHash<QString, QString> versions; // by identity, of upgrades
    if (plan.work == upgradeWork) {
        for (const BatchDevice &device : plan.devices)
            versions.insert(device.identity, versionOf(device.identity));
    }
    if (batch->isRunning())
        connect(batch, &Batch::finished, this, [this, batch, versions] { recordBatch(*batch, versions); });
    else
        recordBatch(*batch, versions);
}

void VisitChanges::recordBatch(const Batch &batch, const QHash<QString, QString> &versionsBefore)
{
    const BatchPlan &plan = batch.plan();
    const bool isCommand = plan.work.startsWith(QLatin1String("cgi")); // its response may have secrets
    for (const Batch::Entry &entry : batch.entries()) {
        if (entry.outcome.result != BatchReport::Succeeded)
            continue;
        VisitChange change = {.time = entry.time,
                              .identity = entry.device.identity,
                              .ipport = entry.device.ipport,
                              .device = entry.device.title,
                              .operation = ReportTexts::batchOperation(plan.work, batch.title()),
                              .value = plan.values};
        if (plan.work == upgradeWork) {
            // The row has the new version already, unless the device has not reported it yet.
            const QString before = versionsBefore.value(entry.device.identity);
            const QString now = versionOf(entry.device.identity);
            change.value =
                before == now || before.isEmpty() ? now : QStringLiteral("%1 → %2").arg(before, now);
        } else if (!isCommand && !entry.outcome.text.isEmpty()) {
            change.value = entry.outcome.text;
        }
        add(change);
    }
}

void VisitChanges::recordSetting(const QString &ipport, const QString &setting, int channel,
                                 const QString &value)
{
    const BatchDevice device = batchDevice(m_factory, dhFamily, ipport);
    const VisitChange change = {.time = QDateTime::currentDateTime(),
                                .identity = device.identity,
                                .ipport = ipport,
                                .device = device.title,
                                .operation = ReportTexts::writtenSetting(setting, channel),
                                .value = ReportTexts::writtenValue(value)};
    if (!m_changes.isEmpty() && m_changes.constLast().identity == change.identity &&
        m_changes.constLast().operation == change.operation)
        m_changes.last() = change; // a slider writes each of its positions
    else
        add(change);
}

void VisitChanges::add(const VisitChange &change)
{
    if (m_changes.size() >= maximumChanges) {
        m_changes.removeFirst();
        ++m_dropped;
    }
    m_changes.append(change);
}
