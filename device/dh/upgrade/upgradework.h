// The upgrade of one device: check of the file, sending, restart, check of the new version.
#pragma once

#include "device/dh/upgrade/firmwarefile.h"
#include "device/registry/devicestep.h"
#include "device/registry/loginresult.h"
#include "sdk/sdklibraries.h"
#include "sdk/upgradeblocks.h"

#include <atomic>
#include <chrono>
#include <functional>
#include <stop_token>

/// Device, account and file of an upgrade.
struct UpgradeOrder
{
    QString key;    ///< identifies the upgrade in a round: `row`, or `ipport` without a row
    QString row;    ///< row name, see DeviceStore::rowNamed(); empty if there is no row
    QString ipport; ///< "address:port" of the device
    QString account;
    QString password;
    QString model;       ///< of the device; empty if unknown: then only the device's own report is checked
    QString file;        ///< local path
    QString device = {}; ///< key of the device in BatchEngine, see workKey()
};

/// State of an upgrade.
struct UpgradeState
{
    UpgradeTools::Result result = UpgradeTools::Waiting;
    int percent = 0;  ///< of the complete upgrade, 0 to 100; decreases if the device requests the file again
    QString text;     ///< in the user's language
    QString version;  ///< reported by the device after the upgrade; empty before and if unknown
    QString versions; ///< old and new version, for the user; only on success
};

/// Reasons to end an upgrade early.
struct UpgradeStop
{
    std::stop_token end;                  ///< the application closes: waits are aborted
    const std::atomic<bool> &isRequested; ///< the user has requested a stop
};

/// Limits and timeouts of upgrades.
struct UpgradeLimits
{
    int maximumParallel = 4; ///< maximum number of upgrades in parallel
    /// Maximum time without progress while sending, and while the device writes. The result is Stuck then.
    std::chrono::milliseconds sendingStandsStill = std::chrono::seconds(25);
    std::chrono::milliseconds writingStandsStill = std::chrono::seconds(90);
    /// Time from the end of writing after which a device that still responds counts as rebooted.
    std::chrono::milliseconds leaves = std::chrono::seconds(30);
    /// Maximum time from the end of writing until the device responds again. The result is NotBack then.
    std::chrono::milliseconds comesBack = std::chrono::minutes(3);
    /// Maximum time for sending and writing together. The result is Stuck then.
    std::chrono::milliseconds whole = std::chrono::minutes(30);
};

/// Upgrades one device: checks the file, logs in, sends the file, waits until the device has restarted, and
/// compares the versions. run() is called once; it blocks its thread, which may be any.
class UpgradeWork
{
public:
    using Report = std::function<void(const UpgradeState &state)>;

    /// `report` is called with each change of the state before the final one, on the thread of run(). The
    /// references must outlive this object.
    UpgradeWork(const sdk::SdkLibraries &libraries, const UpgradeLimits &limits, const UpgradeOrder &order,
                UpgradeStop stop, Report report);

    /// Runs the upgrade and returns its final state. A stop by the user or of the batch (`control`) ends an
    /// upgrade before and while the file is sent. Once the device writes its firmware, the upgrade continues
    /// to its end, and the reported text says that it cannot be stopped. UpgradeStop::end aborts it in every
    /// phase after the running request; the result is Cut, or the failure of that request. Calls
    /// control.releaseSlot() when the device restarts. The deadline of `control` has no effect.
    [[nodiscard]] UpgradeState run(const StepControl &control);

private:
    struct Identity
    {
        QString model;
        QString version;
    };

    class UpgradeProgressInbox; ///< latest progress reported by the library

    [[nodiscard]] UpgradeState send(std::int64_t loginHandle, const FirmwareFile &file,
                                    UpgradeProgressInbox &inbox, const StepControl &control);
    [[nodiscard]] UpgradeState follow(std::int64_t upgradeHandle, const UpgradeProgressInbox &inbox,
                                      const StepControl &control);
    [[nodiscard]] UpgradeState waitForReturn(const FirmwareFile &file, const StepControl &control);
    [[nodiscard]] bool shouldStop(const StepControl &control) const;
    /// The result for a device that reports this version (not empty) after its reboot.
    [[nodiscard]] UpgradeTools::Result outcomeOf(const FirmwareFile &file, const QString &version) const;
    [[nodiscard]] Identity identity(std::int64_t loginHandle) const;
    void report(UpgradeTools::Result result, int percent, const QString &remark = QString());
    void reportProgress(const sdk::UpgradeProgress &progress);
    [[nodiscard]] UpgradeState ended(UpgradeTools::Result result) const;

    const sdk::SdkLibraries &m_libraries;
    const UpgradeLimits &m_limits;
    const UpgradeOrder &m_order;
    const UpgradeStop m_stop;
    const Report m_report;
    QString m_oldVersion;
    UpgradeState m_state;
    bool m_stopRefused = false; ///< no further stop requests in the phase Writing
    QString m_stopRemark;       ///< message why the upgrade has not stopped
};
