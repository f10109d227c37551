// Runs the steps of batches on threads of its own.
#pragma once

#include "device/registry/devicestep.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <chrono>
#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

/// One step of a batch.
struct BatchItem
{
    QString device;     ///< two steps of one device never run at the same time, whichever batches they are of
    QString login = {}; ///< tells apart the accounts that the steps of one device use; empty for one
    DeviceStep step;
};

/// How the steps of a batch follow each other.
struct BatchPolicy
{
    int atOnce = 8;                        ///< devices that are worked on at the same time, 1 or more
    std::chrono::milliseconds deadline{0}; ///< of a step, after which it is to end; 0 for none
    int wrongPasswordsInARow = 0;          ///< that hold the batch until resume(); 0 for any number
};

/// Learns of a batch. Called on threads of the engine, without a lock; one batch's calls may come from
/// several threads at the same time, except for ended(), which is the last one.
class BatchWatcher
{
public:
    virtual ~BatchWatcher() = default;

    /// `place` is an index of the batch's items.
    virtual void started(std::size_t place) = 0;
    virtual void finished(std::size_t place, const StepOutcome &outcome) = 0;

    /// Too many devices in a row have refused the password. What runs goes on, nothing new begins.
    virtual void held() = 0;

    /// Items that were not finished are not done.
    virtual void ended() = 0;
};

/// Thread-safe. Steps of one device keep their order. After a device has refused an account, or is locked,
/// its further steps with that account in the batch end with the same outcome and are not run: each try
/// counts towards its lock.
class BatchEngine
{
public:
    static constexpr std::size_t maximumThreads = 80;

    /// Deadlines are times of `clock`. Without one (null) steps have none.
    explicit BatchEngine(std::shared_ptr<const sdk::Clock> clock);

    /// Ends.
    ~BatchEngine();
    BatchEngine(const BatchEngine &) = delete;
    BatchEngine &operator=(const BatchEngine &) = delete;

    /// Milliseconds on the clock of the deadlines; without it on one of the system.
    [[nodiscard]] std::int64_t now() const;

    /// Returns the batch's number, 0 when the engine has ended or there is no thread to be had. An empty
    /// batch ends at once, in this call. The engine keeps the watcher until ended() has returned.
    int start(std::vector<BatchItem> items, const BatchPolicy &policy, std::shared_ptr<BatchWatcher> watcher);

    /// Adds a step behind the others. Returns false when the batch has ended, or is stopped.
    bool append(int number, BatchItem item);

    /// Starts nothing new of a batch, lets those of its steps go and asks the running ones to end. Does
    /// nothing for one that has ended.
    void stop(int number);

    /// Goes on with a batch that is held.
    void resume(int number);

    /// Keeps the steps of a device from beginning as long as it exists. The engine outlives it.
    class Hold
    {
    public:
        Hold() = default;
        Hold(Hold &&other) noexcept;
        Hold &operator=(Hold &&) = delete;
        ~Hold();

    private:
        friend BatchEngine;
        Hold(BatchEngine &engine, QString device) : m_engine(&engine), m_device(std::move(device)) {}

        BatchEngine *m_engine = nullptr;
        QString m_device;
    };

    /// For work on a device that is no step: blocks until no step of it runs, `stop` is requested or the
    /// engine ends. Several may hold a device at the same time.
    [[nodiscard]] Hold hold(const QString &device, const std::stop_token &stop);

    /// Stops every batch, and starts none any more. Does not wait for the steps that run.
    void requestEnd();

    /// The same, and waits for them.
    void end();

private:
    /// The steps of one device that are still to come, as indices of the items in their order.
    using Waiting = std::vector<std::size_t>;

    struct Batch
    {
        std::vector<BatchItem> items; ///< append() moves them
        BatchPolicy policy;
        std::shared_ptr<BatchWatcher> watcher;
        std::map<std::size_t, Waiting> waiting; ///< by the first index; the last one of each is the next
        QHash<QString, Waiting> following;      ///< further steps of devices with a running step of the batch
        QHash<std::pair<QString, QString>, StepOutcome> refusals; ///< by device and login
        std::stop_source stop;
        std::size_t running = 0; ///< steps
        int placesTaken = 0;     ///< of policy.atOnce
        int wrongPasswords = 0;  ///< in a row
        bool isHeld = false;
        bool isStopped = false;
    };

    /// A step that a thread has taken.
    struct Taken
    {
        std::shared_ptr<Batch> batch; ///< null: there is none
        int number = 0;
        std::size_t place = 0;
        BatchItem item;
    };

    [[nodiscard]] bool isInUse(const QString &device) const; ///< with the lock
    [[nodiscard]] Taken takeLocked();
    [[nodiscard]] bool hasWorkLocked() const;
    void addThreadsLocked();
    void work(const std::stop_token &stop);
    void run(Taken taken);
    [[nodiscard]] StepOutcome perform(Taken &taken, bool &holdsPlace);
    void releasePlace(Batch &batch, bool &holdsPlace);
    /// Returns true when the batch is held from now on.
    [[nodiscard]] static bool noteLocked(const Taken &taken, const StepOutcome &outcome);

    const std::shared_ptr<const sdk::Clock> m_clock;
    std::mutex m_mutex;
    std::condition_variable_any m_changed;
    std::map<int, std::shared_ptr<Batch>> m_batches; ///< that have not ended, by number
    QSet<QString> m_busyDevices;                     ///< devices with a running step
    QHash<QString, int> m_heldDevices;               ///< how many hold a device
    int m_lastNumber = 0;
    std::size_t m_idleThreads = 0;
    bool m_hasEnded = false;
    std::vector<std::jthread> m_threads;
};
