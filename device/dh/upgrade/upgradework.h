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
    QString key; ///< identifies the upgrade in a round: MAC, or address and port
    QString row; ///< row name, see DeviceStore::rowNamed(); empty if there is no row
    QString ipport;
    QString account;
    QString password;
    QString model;       ///< empty if unknown
    QString file;        ///< local path
    QString device = {}; ///< key of the device in BatchEngine, see workKey()
};

/// State of an upgrade.
struct UpgradeState
{
    UpgradeTools::Result result = UpgradeTools::Waiting;
    int percent = 0;  ///< progress of the complete upgrade, 0 to 100
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
    /// Maximum time without progress while sending, and while the device writes.
    std::chrono::milliseconds sendingStandsStill = std::chrono::seconds(25);
    std::chrono::milliseconds writingStandsStill = std::chrono::seconds(90);
    /// Maximum time until the device starts to reboot, and until it has returned.
    std::chrono::milliseconds leaves = std::chrono::seconds(30);
    std::chrono::milliseconds comesBack = std::chrono::minutes(3);
    std::chrono::milliseconds whole = std::chrono::minutes(30); ///< for sending and writing together
};

/// Upgrades one device. run() blocks its thread, which may be any.
class UpgradeWork
{
public:
    using Report = std::function<void(const UpgradeState &state)>;

    /// `report` is called with each change of the state before the final one, on the thread of run(). The
    /// references must outlive this object.
    UpgradeWork(const sdk::SdkLibraries &libraries, const UpgradeLimits &limits, const UpgradeOrder &order,
                UpgradeStop stop, Report report);

    /// Runs the upgrade and returns its final state. A stop of the batch counts as a stop by the user: an
    /// upgrade that the device is already writing continues to its end.
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
    bool m_stopRefused = false; ///< no further stop requests: the device writes its firmware
    QString m_stopRemark;       ///< message why the upgrade has not stopped
};
