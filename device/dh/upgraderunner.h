// Upgrades of many devices, a few at a time.
#pragma once

#include "device/dh/upgradework.h"

#include <QHash>
#include <QList>

#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

/// Runs upgrades on threads of its own, in the order of their start. Thread-safe. A round begins with the
/// first upgrade and ends when none is left.
class UpgradeRunner
{
public:
    /// Are called on threads of the runner, or inside stop(); must not call end().
    struct Watchers
    {
        std::function<void(const UpgradeOrder &order, const UpgradeState &state)> changed;
        std::function<void()> roundEnded;
    };

    UpgradeRunner(sdk::SdkLibraries libraries, const UpgradeLimits &limits, Watchers watchers);

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
        bool isWaiting = false; ///< for a thread
    };

    /// What an upgrade adds to the percent of its round.
    [[nodiscard]] static int shareOf(const UpgradeState &state);
    [[nodiscard]] bool makeThreadLocked();
    void work(const std::stop_token &stop);
    void change(Upgrade &upgrade, const UpgradeState &state);
    void finish(const std::shared_ptr<Upgrade> &upgrade, const UpgradeState &state);

    const sdk::SdkLibraries m_libraries;
    const UpgradeLimits m_limits;
    const Watchers m_watchers;
    mutable std::mutex m_mutex;
    std::condition_variable_any m_added;
    bool m_hasEnded = false;
    std::size_t m_unfinished = 0;
    std::deque<std::shared_ptr<Upgrade>> m_waiting;   ///< also those that were stopped since
    QHash<QString, std::shared_ptr<Upgrade>> m_round; ///< by key
    qsizetype m_percentSum = 0;                       ///< of the shares of the round
    std::vector<std::jthread> m_threads;
};
