// Upgrades of many devices, a few at a time.
#pragma once

#include "device/batch/batchengine.h"
#include "device/dh/upgrade/upgradework.h"

#include <QHash>
#include <QList>

#include <condition_variable>
#include <memory>
#include <mutex>

/// Makes upgrades into steps of batches, and knows of a round of them how far each is. Thread-safe. A round
/// begins with the first upgrade and ends when none is left.
class UpgradeRunner
{
public:
    /// Are called on threads of the engine, inside stop(), or where a step goes; must not call end().
    struct Watchers
    {
        std::function<void(const UpgradeOrder &order, const UpgradeState &state)> changed;
        std::function<void()> roundEnded;
    };

    /// `engine` runs what start() takes. A device that restarts gives its place among those that are upgraded
    /// at the same time away.
    UpgradeRunner(sdk::SdkLibraries libraries, const UpgradeLimits &limits,
                  std::shared_ptr<BatchEngine> engine, Watchers watchers);

    /// Ends.
    ~UpgradeRunner();
    UpgradeRunner(const UpgradeRunner &) = delete;
    UpgradeRunner &operator=(const UpgradeRunner &) = delete;

    /// An upgrade as a step of a batch. It waits from now on, until the step is run, stop() is called, or the
    /// step goes without having been run: then it is stopped. For a device that is upgraded already, and when
    /// the runner has ended, the step does nothing. The outcome is as UpgradeTools::batchResult() has it.
    [[nodiscard]] DeviceStep step(const UpgradeOrder &order);

    /// The same on the engine, behind those that were started so before. Returns false, and takes nothing,
    /// for what step() makes nothing of.
    bool start(const UpgradeOrder &order);

    /// Asks an upgrade to stop, which it does until the device writes.
    void stop(const QString &key);

    [[nodiscard]] bool isUpgrading() const;
    [[nodiscard]] bool isUpgrading(const QString &key) const;

    /// Of the round, 100 when it has ended.
    [[nodiscard]] int percent() const;

    /// Nothing begins any more, and what is not done is given up. Does not wait for it.
    void requestEnd();

    /// The same, and waits for what is given up, but not for a device that does not answer. The devices that
    /// write go on by themselves.
    void end();

private:
    struct Upgrade
    {
        UpgradeOrder order;
        UpgradeState state;
        std::atomic<bool> stopAsked = false;
        std::atomic<bool> isWaiting = true; ///< for its turn
    };

    /// What an upgrade adds to the percent of its round.
    [[nodiscard]] static int shareOf(const UpgradeState &state);
    /// Null for what is not taken.
    [[nodiscard]] std::shared_ptr<Upgrade> enter(const UpgradeOrder &order);
    [[nodiscard]] DeviceStep stepOf(const std::shared_ptr<Upgrade> &upgrade);
    [[nodiscard]] StepOutcome perform(Upgrade &upgrade, const StepControl &control);
    /// Ends an upgrade that still waits for its turn.
    void giveUpWaiting(Upgrade &upgrade, UpgradeTools::Result result);
    void change(Upgrade &upgrade, const UpgradeState &state);
    /// Does nothing for one that has ended.
    void finish(Upgrade &upgrade, const UpgradeState &state);

    const sdk::SdkLibraries m_libraries;
    const UpgradeLimits m_limits;
    const std::shared_ptr<BatchEngine> m_engine;
    const Watchers m_watchers;
    mutable std::mutex m_mutex;
    std::condition_variable m_finished;
    std::stop_source m_end;
    std::size_t m_unfinished = 0;
    int m_telling = 0; ///< threads that tell the end of an upgrade
    std::mutex m_submitting;
    int m_batch = 0;                                  ///< in the engine; guarded by m_submitting
    QHash<QString, std::shared_ptr<Upgrade>> m_round; ///< by key
    qsizetype m_percentSum = 0;                       ///< of the shares of the round
};
