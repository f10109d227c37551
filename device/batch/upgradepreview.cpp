#include "device/batch/upgradepreview.h"

#include "device/registry/busystate.h"
#include "device/registry/devicefactory.h"
#include "device/registry/devicefamily.h"
#include "device/registry/mapkeys.h"
#include "device/store/devicerow.h"
#include "sdk/firmwarehead.h"

#include <QFileInfo>

#include <utility>

namespace {

const QString identityKey = QStringLiteral("identity");

} // namespace

UpgradePreview::~UpgradePreview()
{
    endReading();
}

void UpgradePreview::setIdentities(const QStringList &identities)
{
    endReading();
    m_upgrades.clear();
    QVariantList devices;
    const QList<PlannedUpgrade> plans = deviceFactory()
                                            ? deviceFactory()->backEnd(dhFamily)->plannedUpgrades(identities)
                                            : QList<PlannedUpgrade>();
    for (qsizetype index = 0; index < plans.size(); ++index) {
        QVariantMap device = deviceFactory()->getDeviceDetail(dhFamily, identities.at(index));
        device.insert(identityKey, identities.at(index));
        m_upgrades.insert(identities.at(index), {.device = device.value(DeviceRowKey::vision).toString(),
                                                 .file = QFileInfo(plans.at(index).file).fileName(),
                                                 .version = plans.at(index).version,
                                                 .refusal = plans.at(index).refusal});
        devices.append(device);
    }
    setDevices(devices);
}

void UpgradePreview::readDocument(const QString &path)
{
    endReading();
    if (!deviceFactory())
        return;
    m_reading = {};
    m_work = deviceFactory()->busyState()->begin(tr("读取升级文档"), BusyState::Rows);
    deviceFactory()->backEnd(dhFamily)->runForPage(
        deviceFactory()->backEnd(dhFamily)->upgradeDocumentReading(path), m_reading.get_token(),
        [self = QPointer(this), reading = m_reading.get_token()](const PageOutcome &outcome) {
            if (!self || reading.stop_requested())
                return;
            if (outcome.take)
                outcome.take();
            self->takeDocument(outcome.value.toMap());
        });
}

void UpgradePreview::endReading()
{
    m_reading.request_stop();
    if (const int work = std::exchange(m_work, 0); work != 0 && deviceFactory())
        deviceFactory()->busyState()->end(work);
}

void UpgradePreview::takeDocument(const QVariantMap &document)
{
    endReading();
    m_upgrades.clear();
    QVariantList devices;
    const QVariantList lines = document.value(UpgradeDocumentKey::lines).toList();
    for (const QVariant &value : lines) {
        const QVariantMap line = value.toMap();
        const int number = line.value(ListLineKey::line).toInt();
        QVariantMap device = line.value(ListLineKey::device).toMap();
        device.insert(identityKey, QString::number(number));
        device.insert(DeviceRowKey::ipport, line.value(ListLineKey::address));
        m_upgrades.insert(QString::number(number),
                          {.device = device.value(DeviceRowKey::vision).toString(),
                           .file = QFileInfo(line.value(ListLineKey::file).toString()).fileName(),
                           .version = line.value(ListLineKey::version).toString(),
                           .refusal = line.value(ListLineKey::code).toInt(),
                           .line = number});
        devices.append(device);
    }
    setDevices(devices);
    const QString refusal = document.value(UpgradeDocumentKey::refusal).toString();
    Q_EMIT documentRead(refusal.isEmpty() && lines.isEmpty() ? tr("文档中没有设备") : refusal);
}

QString UpgradePreview::identityAt(int row) const
{
    return deviceAt(row).value(identityKey).toString();
}

BatchPreview::Judgement UpgradePreview::judgementOf(int row) const
{
    const Upgrade upgrade = m_upgrades.value(identityAt(row));
    Judgement judgement = BatchPreview::judgementOf(row);
    if (judgement.kind == Skipped)
        return judgement;
    if (upgrade.refusal != UpgradeTools::None)
        return {.kind = Skipped, .note = tr("%1，不会执行").arg(UpgradeTools::text(upgrade.refusal))};
    //: The name of a file, and the version of the firmware in it.
    judgement.action =
        upgrade.version.isEmpty() ? upgrade.file : tr("%1（%2）").arg(upgrade.file, upgrade.version);
    const bool isSame = sdk::isSameVersion(upgrade.device.toStdString(), upgrade.version.toStdString());
    if (judgement.kind == Planned && isSame) {
        judgement.kind = Warned;
        judgement.note = tr("设备已是此版本");
    }
    return judgement;
}

QVariantMap UpgradePreview::valuesOf(int row) const
{
    QVariantMap values = BatchPreview::valuesOf(row);
    const Upgrade upgrade = m_upgrades.value(identityAt(row));
    values.insert(DeviceRowKey::vision, upgrade.device);
    if (upgrade.line > 0)
        values.insert(DeviceRowKey::num, upgrade.line);
    return values;
}
