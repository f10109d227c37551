// Runs upgrades of many devices, a few in parallel.
#pragma once

#include "device/batch/batchengine.h"
#include "device/dh/upgrade/upgradework.h"

#include <QHash>
#include <QList>

#include <condition_variable>
#include <memory>
#include <mutex>

/// Makes steps of upgrades and tracks the progress of the round. A round starts with the first upgrade and
/// ends when no upgrade is running. Thread-safe.
class UpgradeRunner
{
public:
    /// Callbacks. Called on threads of the engine, inside step(), start(), stop(), requestEnd() and end(),
    /// and where a step is destroyed. Must not call end().
    struct Watchers
    {
        std::function<void(const UpgradeOrder &order, const UpgradeState &state)> changed;
        std::function<void()> roundEnded;
    };

    /// `engine` runs the upgrades of start(). A restarting device releases its slot of parallel upgrades.
    UpgradeRunner(sdk::SdkLibraries libraries, const UpgradeLimits &limits,
                  std::shared_ptr<BatchEngine> engine, Watchers watchers);

    /// Calls end().
    ~UpgradeRunner();
    UpgradeRunner(const UpgradeRunner &) = delete;
    UpgradeRunner &operator=(const UpgradeRunner &) = delete;

    /// Adds an upgrade to the round and returns its step. The upgrade waits until the step runs, or ends as
    /// stopped if stop() is called or the step is destroyed without having run. If the device is being
    /// upgraded or the runner has ended, nothing is added and the step returns LoginResult::Upgrading.
    /// Results are those of UpgradeTools::batchResult().
    [[nodiscard]] DeviceStep step(const UpgradeOrder &order);

    /// Adds an upgrade and runs it on the engine, after those started before. Returns false, and adds
    /// nothing, if the device is being upgraded or the runner has ended.
    bool start(const UpgradeOrder &order);

    /// Requests a stop of an upgrade. It takes effect unless the device writes its firmware already.
    void stop(const QString &key);

    [[nodiscard]] bool isUpgrading() const; ///< whether any upgrade is waiting or running
    [[nodiscard]] bool isUpgrading(const QString &key) const;

    /// Progress of the round, 0 to 100; 100 before the first round and after the end of a round.
    [[nodiscard]] int percent() const;

    /// Starts no further upgrades and cancels the unfinished ones. Does not wait.
    void requestEnd();

    /// requestEnd(), then waits up to half a second. Devices that write their firmware continue without the
    /// application.
    void end();

private:
    struct Upgrade
    {
        UpgradeOrder order;
        UpgradeState state;
        std::atomic<bool> stopRequested = false;
        std::atomic<bool> isWaiting = true; ///< its step has not started
    };

    /// Contribution of an upgrade to the progress of the round, 0 to 100.
    [[nodiscard]] static int shareOf(const UpgradeState &state);
    /// Adds an upgrade to the round; null if that is refused.
    [[nodiscard]] std::shared_ptr<Upgrade> enter(const UpgradeOrder &order);
    [[nodiscard]] DeviceStep stepOf(const std::shared_ptr<Upgrade> &upgrade);
    [[nodiscard]] StepOutcome perform(Upgrade &upgrade, const StepControl &control);
    /// Ends an upgrade whose step has not started.
    void endWaiting(Upgrade &upgrade, UpgradeTools::Result result);
    void change(Upgrade &upgrade, const UpgradeState &state);
    /// Sets the final state; does nothing if the upgrade has ended.
    void finish(Upgrade &upgrade, const UpgradeState &state);

    const sdk::SdkLibraries m_libraries;
    const UpgradeLimits m_limits;
    const std::shared_ptr<BatchEngine> m_engine;
    const Watchers m_watchers;
    mutable std::mutex m_mutex; ///< guards the round, its states and numbers
    std::condition_variable m_finished;
    std::stop_source m_end;
    std::size_t m_unfinished = 0;                     ///< number of waiting and running upgrades
    int m_reporting = 0;                              ///< threads that are reporting the end of an upgrade
    std::mutex m_submitting;                          ///< held while an upgrade is passed to the engine
    int m_batch = 0;                                  ///< number in the engine; guarded by m_submitting
    QHash<QString, std::shared_ptr<Upgrade>> m_round; ///< by key
    qsizetype m_percentSum = 0;                       ///< sum of shareOf() of the round
};
