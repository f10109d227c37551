// Firmware upgrades of the devices of rows.
#pragma once

#include "device/registry/devicestep.h"
#include "device/registry/upgradeplan.h"

#include <QCoreApplication>
#include <QList>
#include <QStringList>

#include <memory>

class BackEndSignals;
class DeviceStore;
class UpgradeOrders;
class UpgradeRound;
struct FirmwareFile;

/// Rows are named by MAC, or by address and port where they have none, as those of IPv6 devices. On the
/// scene's thread.
class RowUpgrades
{
    Q_DECLARE_TR_FUNCTIONS(RowUpgrades)
public:
    RowUpgrades(std::shared_ptr<DeviceStore> store, UpgradeRound &round, const UpgradeOrders &orders,
                BackEndSignals &backEndSignals);

    /// `path` may be a "file:///" address. A device that is being upgraded keeps its file. The row's
    /// "upgraderes" and "result" say what is wrong with the file, which is looked at again at the start.
    /// Returns what speaks against the upgrade of each, an UpgradeTools::Result.
    QList<int> setFiles(const QStringList &macs, const QString &path);

    /// Returns at once; the rows show how far each device is and its result: "upgrade" in percent,
    /// "upgraderes" an UpgradeTools::Result, "upgradetext" in words, and "vision" at the end.
    void start(const QStringList &macs);

    /// Of start(), for the device of a row, or of a document's line that has no row.
    [[nodiscard]] DeviceStep step(const QString &mac);

    /// step() for a device whose line of a document was upgraded before: the result goes into the file as
    /// well.
    [[nodiscard]] DeviceStep repeatedDocumentStep(const QString &mac);

    /// What step() would do with each of these rows.
    [[nodiscard]] QList<PlannedUpgrade> planned(const QStringList &macs) const;

    /// The names of the rows whose upgrade has failed and may go well another time, of both lists.
    [[nodiscard]] QStringList toRetry() const;

private:
    /// Returns what speaks against the upgrade of the row's device.
    UpgradeTools::Result setFile(const QString &mac, const QString &file, const FirmwareFile &firmware);

    const std::shared_ptr<DeviceStore> m_store;
    UpgradeRound &m_round;
    const UpgradeOrders &m_orders;
    BackEndSignals &m_signals;
};
