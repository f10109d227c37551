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

/// Sets firmware files of rows and starts their upgrades. `mac` is the name of a row of either list, see
/// rowName(). Lives on the main thread; its steps run on any thread.
class RowUpgrades
{
public:
    /// The referenced objects must outlive this object and its steps.
    RowUpgrades(std::shared_ptr<DeviceStore> store, UpgradeRound &round, const UpgradeOrders &orders,
                BackEndSignals &backEndSignals);

    /// Sets the firmware file of rows; `path` may be a "file:///" URL, or empty to remove the file. The file
    /// is set also if it cannot be used: "upgraderes" and "upgradetext" of a row then show the reason; the
    /// file is checked again at the start. Returns an UpgradeTools::Result for each row: None (also for an
    /// empty path), or why the upgrade is refused. The row of a device that is being upgraded is unchanged
    /// (DeviceBusy). NotListed for a name without a row.
    QList<int> setFiles(const QStringList &macs, const QString &path);

    /// Starts upgrades and returns immediately. A name without a row is logged and ignored; a device that is
    /// being upgraded is ignored. The rows show the progress and result: "upgrade" (percent), "upgraderes"
    /// (an UpgradeTools::Result), "upgradetext" (in the user's language), and at the end "vision" (the
    /// version).
    void start(const QStringList &macs);

    /// The step of an upgrade. `mac` is the name of a row, or the address and port of a document line without
    /// a row. The row shows immediately that it is waiting. The result is that of
    /// UpgradeTools::batchResult(): a LoginResult or a code of an upgrade in loginresult.h. Upgrading, with
    /// the row unchanged, if the device is being upgraded already; NotDone for an unknown name.
    [[nodiscard]] DeviceStep step(const QString &mac);

    /// step() for a device that was upgraded from a document before: the result is written to the document's
    /// file as well, unless another document is open.
    [[nodiscard]] DeviceStep repeatedDocumentStep(const QString &mac);

    /// The file and version that step() would use for each of these rows, and why it would refuse the file
    /// (NoFile also for a name without a row). Running upgrades are not considered. Reads the headers of the
    /// files.
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
