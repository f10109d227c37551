// The upgrade of one device, from the look at the file to the answer with the new version.
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

/// Which device gets which file.
struct UpgradeOrder
{
    QString key; ///< names the device among those that are upgraded: its MAC, or its address and port
    QString row; ///< names its row, as DeviceStore::rowNamed() takes it; empty when there is none
    QString ipport;
    QString account;
    QString password;
    QString model; ///< empty when it is not known
    QString file;
    QString device = {}; ///< as the engine knows it, see workKey()
};

struct UpgradeState
{
    UpgradeTools::Result result = UpgradeTools::Waiting;
    int percent = 0;  ///< of the whole upgrade
    QString text;     ///< in the user's language
    QString version;  ///< that the device has answered with at the end
    QString versions; ///< before and now, for the user, of a success
};

/// What ends an upgrade early.
struct UpgradeStop
{
    std::stop_token end;              ///< of the program: waits are cut short
    const std::atomic<bool> &isAsked; ///< the user wants it to stop
};

/// How long is waited for a device.
struct UpgradeLimits
{
    int atOnce = 4; ///< devices that are upgraded at the same time
    std::chrono::milliseconds sendingStandsStill = std::chrono::seconds(25);
    std::chrono::milliseconds writingStandsStill = std::chrono::seconds(90);
    std::chrono::milliseconds leaves = std::chrono::seconds(30); ///< until it has gone to reboot
    std::chrono::milliseconds comesBack = std::chrono::minutes(3);
    std::chrono::milliseconds whole = std::chrono::minutes(30); ///< until it is written
};

/// Runs on any one thread and blocks it.
class UpgradeWork
{
public:
    using Tell = std::function<void(const UpgradeState &state)>;

    /// `tell` gets each change on the way.
    UpgradeWork(const sdk::SdkLibraries &libraries, const UpgradeLimits &limits, const UpgradeOrder &order,
                UpgradeStop stop, Tell tell);

    /// Returns the end. The stop of its batch counts as one that the user asks for: a device that writes is
    /// followed to its end.
    [[nodiscard]] UpgradeState run(const StepControl &control);

private:
    struct Identity
    {
        QString model;
        QString version;
    };

    class News;

    [[nodiscard]] UpgradeState send(std::int64_t loginHandle, const FirmwareFile &file, News &news,
                                    const StepControl &control);
    [[nodiscard]] UpgradeState follow(std::int64_t upgradeHandle, const News &news,
                                      const StepControl &control);
    [[nodiscard]] UpgradeState waitForReturn(const FirmwareFile &file, const StepControl &control);
    [[nodiscard]] bool shouldStop(const StepControl &control) const;
    /// What it means that a device tells this version, which is not empty, after its reboot.
    [[nodiscard]] UpgradeTools::Result outcomeOf(const FirmwareFile &file, const QString &version) const;
    [[nodiscard]] Identity identity(std::int64_t loginHandle) const;
    void tell(UpgradeTools::Result result, int percent, const QString &remark = QString());
    void tellOnWay(const sdk::UpgradeProgress &progress);
    [[nodiscard]] UpgradeState ended(UpgradeTools::Result result) const;

    const sdk::SdkLibraries &m_libraries;
    const UpgradeLimits &m_limits;
    const UpgradeOrder &m_order;
    const UpgradeStop m_stop;
    const Tell m_tell;
    QString m_oldVersion;
    UpgradeState m_state;
    bool m_stopRefused = false; ///< it writes
    QString m_stopRemark;       ///< why it has not stopped
};
