// Firmware upgrades of rows.
#pragma once

#include "device/registry/devicestep.h"
#include "device/registry/upgradeplan.h"

#include <QList>
#include <QStringList>

#include <memory>

class BackEndSignals;
class DeviceStore;
class UpgradeOrders;
class UpgradeRound;
struct FirmwareFile;

/// Sets firmware files of rows and starts their upgrades. Rows are named by MAC, or by address and port
/// without one (as IPv6 rows). Lives on the main thread.
class RowUpgrades
{
public:
    /// The referenced objects must outlive this object.
    RowUpgrades(std::shared_ptr<DeviceStore> store, UpgradeRound &round, const UpgradeOrders &orders,
                BackEndSignals &backEndSignals);

    /// Sets the firmware file of rows; `path` may be a "file:///" URL, or empty to remove the file. A device
    /// that is being upgraded keeps its file. "upgraderes" and "upgradetext" of a row show why the file
    /// cannot be used; the file is checked again at the start. Returns an UpgradeTools::Result for each row:
    /// None, or why the upgrade is refused.
    QList<int> setFiles(const QStringList &macs, const QString &path);

    /// Starts upgrades and returns immediately. The rows show the progress and result: "upgrade" (percent),
    /// "upgraderes" (an UpgradeTools::Result), "upgradetext" (in the user's language), and at the end
    /// "vision".
    void start(const QStringList &macs);

    /// The upgrade step for a row, or for a document line without a row.
    [[nodiscard]] DeviceStep step(const QString &mac);

    /// step() for a device that was upgraded from a document before: the result is written to the document as
    /// well.
    [[nodiscard]] DeviceStep repeatedDocumentStep(const QString &mac);

    /// The file and version that step() would use for each of these rows, and why it would refuse.
    [[nodiscard]] QList<PlannedUpgrade> planned(const QStringList &macs) const;

    /// Names of the rows (IPv4 and IPv6) whose upgrade failed and may succeed if repeated.
    [[nodiscard]] QStringList toRetry() const;

private:
    /// Returns why the upgrade of the row is refused; None if it is not.
    UpgradeTools::Result setFile(const QString &mac, const QString &file, const FirmwareFile &firmware);

    const std::shared_ptr<DeviceStore> m_store;
    UpgradeRound &m_round;
    const UpgradeOrders &m_orders;
    BackEndSignals &m_signals;
};
