// Upgrades of many devices, a few at a time.
#pragma once

#include "device/batch/batchengine.h"
#include "device/dh/upgradework.h"

#include <QHash>
#include <QList>

#include <condition_variable>
#include <memory>
#include <mutex>

/// Runs upgrades in the order of their start. Thread-safe. A round begins with the first upgrade and ends
/// when none is left.
class UpgradeRunner
{
public:
    /// Are called on threads of the engine, or inside stop(); must not call end().
    struct Watchers
    {
        std::function<void(const UpgradeOrder &order, const UpgradeState &state)> changed;
        std::function<void()> roundEnded;
    };

    /// `engine` runs the upgrades. A device that restarts gives its place among those that are upgraded at
    /// the same time away.
    UpgradeRunner(sdk::SdkLibraries libraries, const UpgradeLimits &limits,
                  std::shared_ptr<BatchEngine> engine, Watchers watchers);

    /// Ends.
    ~UpgradeRunner();
    UpgradeRunner(const UpgradeRunner &) = delete;
    UpgradeRunner &operator=(const UpgradeRunner &) = delete;

    /// Takes what is to be upgraded. Returns false, and takes nothing, when that device is upgraded already
    /// or when the runner has ended.
    bool start(const UpgradeOrder &order);

    /// Asks an upgrade to stop, which it does until the device writes.
    void stop(const QString &key);

    [[nodiscard]] bool isUpgrading() const;
    [[nodiscard]] bool isUpgrading(const QString &key) const;

    /// Of the round, 100 when it has ended.
    [[nodiscard]] int percent() const;

    /// Gives up what is not done and waits for the threads. The devices that write go on by themselves.
    void end();

private:
    struct Upgrade
    {
        UpgradeOrder order;
        UpgradeState state;
        std::atomic<bool> stopAsked = false;
        bool isWaiting = true; ///< for its turn
    };

    /// What an upgrade adds to the percent of its round.
    [[nodiscard]] static int shareOf(const UpgradeState &state);
    /// Returns true when the upgrade has waited for its turn until now.
    [[nodiscard]] bool takeWaiting(Upgrade &upgrade);
    [[nodiscard]] bool submit(const std::shared_ptr<Upgrade> &upgrade);
    [[nodiscard]] StepOutcome perform(const std::shared_ptr<Upgrade> &upgrade, const StepControl &control);
    void change(Upgrade &upgrade, const UpgradeState &state);
    void finish(const std::shared_ptr<Upgrade> &upgrade, const UpgradeState &state);

    const sdk::SdkLibraries m_libraries;
    const UpgradeLimits m_limits;
    const std::shared_ptr<BatchEngine> m_engine;
    const Watchers m_watchers;
    mutable std::mutex m_mutex;
    std::condition_variable m_finished;
    bool m_hasEnded = false;
    std::size_t m_unfinished = 0;
    int m_telling = 0; ///< threads that tell the end of an upgrade
    std::mutex m_submitting;
    int m_batch = 0;                                  ///< in the engine; guarded by m_submitting
    QHash<QString, std::shared_ptr<Upgrade>> m_round; ///< by key
    qsizetype m_percentSum = 0;                       ///< of the shares of the round
};
