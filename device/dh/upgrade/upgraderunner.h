// Runs upgrades of many devices, a few in parallel.
#pragma once

#include "device/batch/batchengine.h"
#include "device/dh/upgrade/upgradework.h"

#include <QHash>
#include <QList>

#include <condition_variable>
#include <memory>
#include <mutex>

/// Makes steps of upgrades and tracks the progress of the round: the upgrades since no upgrade was running.
/// A round starts with the first upgrade and ends when none is waiting or running. Thread-safe.
class UpgradeRunner
{
public:
    /// Callbacks; both must be set. Called on the threads that run steps, inside step(), start(), stop(),
    /// requestEnd() and end(), and where a step is destroyed. Must not call end().
    struct Watchers
    {
        /// Called with each state of an upgrade, from waiting to its result.
        std::function<void(const UpgradeOrder &order, const UpgradeState &state)> changed;
        std::function<void()> roundEnded; ///< after `changed` of the last upgrade
    };

    /// `engine` runs the upgrades of start(), up to UpgradeLimits::maximumParallel at a time; it must not be
    /// null. A restarting device does not count.
    UpgradeRunner(sdk::SdkLibraries libraries, const UpgradeLimits &limits,
                  std::shared_ptr<BatchEngine> engine, Watchers watchers);

    /// Calls end(). A step that still runs uses this object: the threads that run steps must have ended
    /// before.
    ~UpgradeRunner();
    UpgradeRunner(const UpgradeRunner &) = delete;
    UpgradeRunner &operator=(const UpgradeRunner &) = delete;

    /// Adds an upgrade to the round and returns its step; the upgrade is waiting until the step runs. It
    /// ends as Stopped if stop() is called, or the step is destroyed, before. If the device is being
    /// upgraded or the runner has ended, nothing is added and the step returns LoginResult::Upgrading. The
    /// result of a step is that of UpgradeTools::batchResult().
    [[nodiscard]] DeviceStep step(const UpgradeOrder &order);

    /// Adds an upgrade and runs it on the engine, after those started before. Returns false, and adds
    /// nothing, if the device is being upgraded or the runner has ended.
    bool start(const UpgradeOrder &order);

    /// Requests a stop of an upgrade by UpgradeOrder::key; an unknown key is ignored. A waiting upgrade ends
    /// in this call. A running one ends when the library accepts the stop; it continues if the device writes
    /// its firmware already.
    void stop(const QString &key);

    [[nodiscard]] bool isUpgrading() const;                   ///< whether any upgrade is waiting or running
    [[nodiscard]] bool isUpgrading(const QString &key) const; ///< whether this one is

    /// Progress of the round in percent, the mean of its upgrades; 100 before the first round and after the
    /// end of a round.
    [[nodiscard]] int percent() const;

    /// Starts no further upgrades and ends the waiting ones as Cut. Running ones are requested to end. Does
    /// not wait.
    void requestEnd();

    /// requestEnd(), then waits up to half a second for the running upgrades. Those that have not ended are
    /// then reported as Cut; their requests end when the library is released. Devices that write their
    /// firmware continue without the application.
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
