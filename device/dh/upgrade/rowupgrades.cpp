#include "device/dh/upgrade/rowupgrades.h"

#include "device/dh/upgrade/firmwarefile.h"
#include "device/dh/upgrade/upgradeorders.h"
#include "device/dh/upgrade/upgraderound.h"
#include "device/registry/backendsignals.h"
#include "device/registry/localpath.h"
#include "device/store/devicerow.h"
#include "device/store/devicestore.h"
#include "device/store/logging.h"

#include <utility>

RowUpgrades::RowUpgrades(std::shared_ptr<DeviceStore> store, UpgradeRound &round, const UpgradeOrders &orders,
                         BackEndSignals &backEndSignals)
    : m_store(std::move(store)), m_round(round), m_orders(orders), m_signals(backEndSignals)
{
}

QList<int> RowUpgrades::setFiles(const QStringList &macs, const QString &path)
{
    const QString file = localPath(path);
    const FirmwareFile firmware = file.isEmpty() ? FirmwareFile() : checkFirmwareFile(file);
    QList<int> refusals;
    refusals.reserve(macs.size());
    for (const QString &mac : macs)
        refusals.append(setFile(mac, file, firmware));
    return refusals;
}

UpgradeTools::Result RowUpgrades::setFile(const QString &mac, const QString &file,
                                          const FirmwareFile &firmware)
{
    if (m_round.isUpgrading(mac))
        return UpgradeTools::DeviceBusy;
    UpgradeTools::Result refusal = UpgradeTools::NotListed;
    m_store->changeRowNamed(mac, [&](QJsonObject &row) {
        refusal = firmware.refusalFor(row.value(DeviceRowKey::model).toString());
        row.insert(DeviceRowKey::filepath, file);
        row.insert(DeviceRowKey::upgrade, 0);
        row.insert(DeviceRowKey::upgraderes, refusal);
        row.insert(DeviceRowKey::upgradetext, UpgradeTools::text(refusal));
    });
    return refusal;
}

void RowUpgrades::start(const QStringList &macs)
{
    for (const QString &mac : macs) {
        const QJsonObject row = m_store->rowNamed(mac);
        if (row.isEmpty())
            qCWarning(logDevice) << "RowUpgrades::start: there is no device" << mac;
        else
            m_round.runner().start(m_orders.orderOf(row));
    }
    m_signals.noteChangedRows();
}

DeviceStep RowUpgrades::step(const QString &mac)
{
    const std::optional<UpgradeOrder> order = m_orders.orderNamed(mac);
    if (!order) {
        return [message = UpgradeTools::text(UpgradeTools::NotListed)](const StepControl &) {
            return StepOutcome{.result = resultCode(LoginResult::NotDone), .text = message};
        };
    }
    m_signals.noteChangedRows();
    return m_round.runner().step(*order);
}

DeviceStep RowUpgrades::repeatedDocumentStep(const QString &mac)
{
    if (m_orders.orderNamed(mac) && !m_round.isUpgrading(mac))
        m_round.documents().repeat(mac);
    return step(mac);
}

QList<PlannedUpgrade> RowUpgrades::planned(const QStringList &macs) const
{
    QList<PlannedUpgrade> plans;
    plans.reserve(macs.size());
    FirmwareFiles files;
    for (const QString &mac : macs) {
        const QJsonObject row = m_store->rowNamed(mac);
        const QString path = row.value(DeviceRowKey::filepath).toString();
        const FirmwareFile &file = files.at(path);
        plans.append({.refusal = file.refusalFor(row.value(DeviceRowKey::model).toString()),
                      .file = path,
                      .version = file.head ? QString::fromStdString(file.head->version) : QString()});
    }
    return plans;
}

QStringList RowUpgrades::toRetry() const
{
    QStringList names;
    for (const QVariant &value : m_store->ipv4Rows() + m_store->ipv6Rows()) {
        const QJsonObject row = value.toJsonObject();
        if (UpgradeTools::canTryAgain(row.value(DeviceRowKey::upgraderes).toInt(UpgradeTools::None)))
            names.append(rowName(row));
    }
    return names;
}
