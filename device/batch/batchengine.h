// Runs the steps of batches on worker threads.
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
    QString device;     ///< key of the device; steps with the same key never run in parallel, in any batch
    QString login = {}; ///< key of the account that the step uses; empty if all steps use one account
    DeviceStep step;    ///< must not be empty
};

/// Limits of a batch.
struct BatchPolicy
{
    /// Maximum number of steps in parallel, without those that have called StepControl::releaseSlot(). At
    /// least 1 is used; with 1, steps start in the order of the items.
    int maximumParallel = 8;
    std::chrono::milliseconds deadline{0}; ///< of each step, see StepControl::noteProgress(); 0: none
    /// Number of refused accounts or passwords in a row that pauses the batch, if steps are left; 0: never.
    /// An accepted login sets the count to 0; a step without a login, as of an offline device, does not.
    int wrongPasswordsInARow = 0;
};

/// Receives the events of a batch, on the engine's threads. The engine holds no lock during a call. Calls for
/// one batch may be made on several threads in parallel, except for ended(), which is the last call. ended()
/// may also be called on the thread that calls BatchEngine::start(), stop() or requestEnd(), during that
/// call.
class BatchWatcher
{
public:
    virtual ~BatchWatcher() = default;

    /// The step of the item with this index is about to run.
    virtual void started(std::size_t index) = 0;

    /// The step of the item with this index has ended with `outcome`. Without an earlier started() the step
    /// was not run: either the batch was stopped just before (LoginResult::NotDone), or an earlier step of
    /// the device was refused with the same account (`outcome` is that of the refusal).
    virtual void finished(std::size_t index, const StepOutcome &outcome) = 0;

    /// The batch is paused: too many devices in a row refused the password. Running steps continue.
    virtual void paused() = 0;

    /// No step of the batch runs any more. Items without a finished() call were not run, because of a stop.
    virtual void ended() = 0;
};

/// Runs the steps of batches on up to 80 threads. Several batches may run at the same time. Steps of one
/// device run one after another, in the order of the items. After a device has refused an account, further
/// steps of the batch with that device and account are not run and get the same outcome, because each attempt
/// counts towards the device's lock. Thread-safe.
class BatchEngine
{
public:
    static constexpr std::size_t maximumThreads = 80;

    /// `clock` measures the deadlines of steps. Null: steps have no deadline.
    explicit BatchEngine(std::shared_ptr<const sdk::Clock> clock);

    /// Calls end().
    ~BatchEngine();
    BatchEngine(const BatchEngine &) = delete;
    BatchEngine &operator=(const BatchEngine &) = delete;

    /// The present time in milliseconds, by `clock` or, if that is null, by the system clock.
    [[nodiscard]] std::int64_t now() const;

    /// Starts a batch and returns immediately. Returns its number (1 or more). Returns 0, without a call of
    /// the watcher, if the engine has ended or no thread can be created. Steps may start before this call
    /// returns. An empty batch ends during this call. The engine keeps the watcher until ended() has
    /// returned.
    int start(std::vector<BatchItem> items, const BatchPolicy &policy, std::shared_ptr<BatchWatcher> watcher);

    /// Appends a step to the running batch with this number. It runs after the earlier steps of its
    /// device. Returns false, and drops the step, if the batch has ended or is stopped.
    bool append(int number, BatchItem item);

    /// Stops the batch with this number: destroys the steps that have not started, and requests the running
    /// steps to end, whose stop callbacks run during this call. Does not wait for running steps. Does nothing
    /// if the batch has ended.
    void stop(int number);

    /// Continues the paused batch with this number, and counts the refused passwords from 0 again. Does
    /// nothing if the batch has ended.
    void resume(int number);

    /// Reservation of a device: no step of the device starts while this object exists. An empty Reservation,
    /// as from the default constructor, reserves nothing. The engine must outlive it.
    class Reservation
    {
    public:
        Reservation() = default;
        Reservation(Reservation &&other) noexcept;
        Reservation &operator=(Reservation &&) = delete;
        ~Reservation();

    private:
        friend BatchEngine;
        Reservation(BatchEngine &engine, QString device) : m_engine(&engine), m_device(std::move(device)) {}

        BatchEngine *m_engine = nullptr;
        QString m_device;
    };

    /// Reserves a device (BatchItem::device) for work outside a batch. Blocks until no step of the device
    /// runs. Returns an empty Reservation if the engine ends, or if `stop` is requested while a step of the
    /// device runs. A free device is reserved even if `stop` is requested. A device may have several
    /// reservations at the same time: they do not exclude each other.
    [[nodiscard]] Reservation reserve(const QString &device, const std::stop_token &stop);

    /// Stops all batches and refuses new ones and reservations. Does not wait for running steps.
    void requestEnd();

    /// requestEnd(), then blocks until all running steps have ended. Must not be called on a thread of the
    /// engine.
    void end();

private:
    /// The steps of one device that have not started, as indexes of the items; the last element is the next
    /// step.
    using Waiting = std::vector<std::size_t>;

    struct Batch
    {
        std::vector<BatchItem> items; ///< append() may reallocate it
        BatchPolicy policy;
        std::shared_ptr<BatchWatcher> watcher;
        std::map<std::size_t, Waiting> waiting; ///< devices without a running step, by next index
        QHash<QString, Waiting> following;      ///< remaining steps of devices with a running step, by device
        QHash<std::pair<QString, QString>, StepOutcome> refusals; ///< by device and login
        std::stop_source stop;
        std::size_t running = 0; ///< number of running steps
        int usedSlots = 0;       ///< used slots of policy.maximumParallel
        int wrongPasswords = 0;  ///< in a row
        bool isPaused = false;
        bool isStopped = false;
    };

    /// A step that a thread has removed from its batch to run it.
    struct Taken
    {
        std::shared_ptr<Batch> batch; ///< null: no step is ready
        int number = 0;
        std::size_t index = 0;
        BatchItem item;
    };

    // The caller of these functions must hold m_mutex.

    /// Whether a step of the device runs, or the device is reserved.
    [[nodiscard]] bool isInUse(const QString &device) const;
    [[nodiscard]] Taken takeNext();
    [[nodiscard]] bool hasWork() const;
    void addThreads();
    /// Updates the count of refused passwords. Returns true if this pauses the batch.
    [[nodiscard]] static bool noteResult(const Taken &taken, const StepOutcome &outcome);

    // The caller of these functions must not hold m_mutex.

    void work(const std::stop_token &stop);
    void run(Taken taken);
    [[nodiscard]] StepOutcome perform(Taken &taken, bool &holdsSlot);
    void releaseSlot(Batch &batch, bool &holdsSlot);

    const std::shared_ptr<const sdk::Clock> m_clock;
    std::mutex m_mutex;
    std::condition_variable_any m_changed;
    std::map<int, std::shared_ptr<Batch>> m_batches; ///< running batches by number
    QSet<QString> m_busyDevices;                     ///< devices with a running step
    QHash<QString, int> m_reservedDevices;           ///< number of reservations by device
    int m_lastNumber = 0;
    std::size_t m_idleThreads = 0;
    bool m_hasEnded = false;
    std::vector<std::jthread> m_threads;
};
