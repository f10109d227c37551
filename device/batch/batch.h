#pragma once

#include "device/batch/batchplan.h"
#include "device/models/batchreport.h"

#include <QDateTime>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QVariantList>

#include <memory>
#include <mutex>

/// One batch, for QML: a work with several devices, its progress and the result of each device. Results
/// arrive from the engine's threads in groups, at most one group every 16 ms.
///
/// A device has succeeded, failed, been skipped (BatchReport::isSkipped()), is waiting for a further step, or
/// is not done: it has no result yet, the batch ended before its turn, or its step ended early (the outcome
/// is NotDone). Functions that return "names" or "identities" use BatchDevice::name and
/// BatchDevice::identity.
///
/// Lives on the main thread; created and owned by Batches. The destructor stops a running batch.
class Batch : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString summary READ summary NOTIFY changed)
    Q_PROPERTY(int total READ total CONSTANT)
    Q_PROPERTY(int done READ done NOTIFY changed)
    Q_PROPERTY(double progress READ progress NOTIFY changed)
    Q_PROPERTY(QString device READ device NOTIFY changed)
    Q_PROPERTY(bool running READ isRunning NOTIFY changed)
    Q_PROPERTY(bool stopping READ isStopping NOTIFY changed)
    Q_PROPERTY(bool paused READ isPaused NOTIFY changed)
    Q_PROPERTY(int refusalsInARow READ refusalsInARow CONSTANT)
    Q_PROPERTY(QString refusedAccounts READ refusedAccounts NOTIFY changed)
    Q_PROPERTY(int failedBefore READ failedBefore NOTIFY changed)
    Q_PROPERTY(int secondsLeft READ secondsLeft NOTIFY changed)
    Q_PROPERTY(BatchReport *report READ report CONSTANT)
    Q_PROPERTY(bool changesAddresses READ changesAddresses CONSTANT)
    Q_PROPERTY(QString retryRefusal READ retryRefusal NOTIFY changed)
    Q_PROPERTY(QDateTime began READ began CONSTANT)
    Q_PROPERTY(QDateTime ended READ ended NOTIFY changed)
public:
    /// A device with its result.
    struct Entry
    {
        BatchDevice device;
        /// StepOutcome::response is empty here: only BatchPlan::takeOutcomes receives it.
        StepOutcome outcome = {.result = BatchReport::NotDone, .text = {}};
        QDateTime time;        ///< of the outcome; invalid before it, and for a device that was not reached
        QString account = {};  ///< user name for the step; empty if the plan has no accountOf
        QByteArray login = {}; ///< hash of account and password of the step, compared for a retry
    };

    /// `engine` must outlive this object.
    Batch(BatchEngine &engine, BatchPlan plan, QObject *parent = nullptr);
    ~Batch() override;

    /// Starts the batch; may be called once. Returns false, without a signal of the end, if the engine does
    /// not accept it.
    bool start();

    /// Name of the work in the user's language; after cancelWaiting() the name of the step that was
    /// cancelled.
    [[nodiscard]] const QString &title() const { return m_title; }
    /// The numbers of devices that have succeeded, failed and so on, as a text in the user's language.
    [[nodiscard]] QString summary() const;
    /// The number of devices of the batch.
    [[nodiscard]] int total() const { return static_cast<int>(m_entries.size()); }
    /// The number of devices with an outcome, also of those whose step ended early with NotDone.
    [[nodiscard]] int done() const { return m_done; }
    /// 0 to 1: the share of done() in total(), or the value of noteProgress() if that is greater.
    [[nodiscard]] double progress() const;
    /// Sets the progress (0 to 1) of all devices together, for batches with long steps.
    void noteProgress(double progress);

    /// BatchDevice::ipport of the device whose running step started first (":port" without an address), or
    /// its name if that is empty; empty if no step runs.
    [[nodiscard]] QString device() const;
    [[nodiscard]] bool isRunning() const { return m_isRunning; }
    /// Whether the batch runs and stop() was called.
    [[nodiscard]] bool isStopping() const { return m_isRunning && m_isStopping; }

    /// Whether no further step starts because refusalsInARow() was reached, until resume() or stop(). Steps
    /// that were running continue.
    [[nodiscard]] bool isPaused() const { return m_isRunning && m_isPaused && !m_isStopping; }

    /// The number of refused passwords in a row after which the batch is paused; 0: never.
    [[nodiscard]] int refusalsInARow() const { return m_plan.policy.wrongPasswordsInARow; }

    /// The user names of the accounts that devices of this batch refused, as one line; empty if there are
    /// none or if the plan has no accountOf.
    [[nodiscard]] QString refusedAccounts() const;

    /// For a retry: the number of devices of the retried batches that failed there or are not done, and that
    /// are not part of this batch. 0 if this batch is no retry.
    [[nodiscard]] int failedBefore() const;

    /// Estimated remaining seconds. -1 if the batch does not run, in its first two seconds, without progress,
    /// and when the estimate has passed without further progress. Also changes with time, without changed().
    [[nodiscard]] int secondsLeft() const;
    /// The results and their numbers by state. Owned by this object.
    [[nodiscard]] BatchReport *report() { return &m_report; }
    /// Whether the batch changes addresses, so that Batches::putAddressesBack() can revert it after its end.
    [[nodiscard]] bool changesAddresses() const { return !m_plan.addressesBefore.isEmpty(); }
    /// Time of start().
    [[nodiscard]] const QDateTime &began() const { return m_began; }
    /// Invalid until the end of the batch.
    [[nodiscard]] const QDateTime &ended() const { return m_ended; }
    /// The devices with their results, in the order of the plan.
    [[nodiscard]] const QList<Entry> &entries() const { return m_entries; }
    [[nodiscard]] const BatchPlan &plan() const { return m_plan; }

    /// Whether a retry of any device, also of the batches that this one retries, may succeed, now or after a
    /// change of its account. False after releaseSteps() and if the plan cannot be retried.
    [[nodiscard]] bool hasRetryable() const;

    /// Releases the step maker of the plan, which may hold a password. The batch cannot be retried
    /// afterwards.
    void releaseSteps();

    /// Requests the end of the batch and returns immediately: steps that have not started are dropped, and
    /// running steps end at their next safe point. finished() follows. Does nothing if the batch does not
    /// run.
    Q_INVOKABLE void stop();

    /// Continues a paused batch; does nothing for another one.
    Q_INVOKABLE void resume();

    /// The user has cancelled the further step that devices of this batch wait for. Sets these devices to
    /// NotDone. `title` is the name of that step. Does nothing if no device waits.
    Q_INVOKABLE void cancelWaiting(const QString &title);

    /// Sets the batch that this batch retries. It is not owned and may be deleted first.
    void setRetryOf(Batch *earlier);

    /// Accounts of devices may have changed, which can make a device retryable that has refused its account.
    /// Emits changed() if the plan has accountOf.
    void noteAccounts();

    /// The devices of this batch, and of the batches that it retries, that have not succeeded and for which a
    /// retry may succeed now. A device of several of these batches is returned if its latest outcome permits
    /// it. Includes devices without an outcome while the batch runs. Empty after releaseSteps() and if the
    /// plan cannot be retried.
    [[nodiscard]] QList<BatchDevice> devicesToRetry() const;

    /// Identities of the devices of this batch, and of the batches that it retries, that have failed or are
    /// not done. Skipped and waiting devices are left out. Pages check the rows of these devices.
    Q_INVOKABLE [[nodiscard]] QStringList failedIdentities() const;

    /// Identities of the devices of this batch that refused their account, and of the devices without an
    /// outcome that have an account that another device has refused. Empty if the plan has no accountOf or
    /// cannot be retried.
    Q_INVOKABLE [[nodiscard]] QStringList devicesOfRefusedAccounts() const;

    /// Names of the devices of devicesToRetry().
    Q_INVOKABLE [[nodiscard]] QStringList retryableDevices() const;

    /// Names of the devices of this batch that have not succeeded: failed, skipped, waiting or not done.
    Q_INVOKABLE [[nodiscard]] QStringList failedDevices() const;

    /// Why devicesToRetry() cannot be retried now, in the user's language; empty if there is a device to
    /// retry, the batch has ended, and no device waits for a further step.
    [[nodiscard]] QString retryRefusal() const;

    /// Whether the batch has ended and its device with this identity can be retried. False for devices that
    /// are only in a batch that it retries.
    Q_INVOKABLE [[nodiscard]] bool canRetry(const QString &identity) const;

    /// The text of the outcome (StepOutcome::text) of the device with this name, from this batch or, if the
    /// device is not in it, from the latest of the batches that it retries; empty if there is none.
    Q_INVOKABLE [[nodiscard]] QString textOf(const QString &device) const;
    /// Same for several devices, in the same order.
    Q_INVOKABLE [[nodiscard]] QStringList textsOf(const QStringList &devices) const;

    /// Maps of "device" and "message" for those of the devices with these names that are in this batch or in
    /// the batches that it retries. "message" is the text of the outcome, or resultName() if that is empty.
    Q_INVOKABLE [[nodiscard]] QVariantList messagesOf(const QStringList &devices) const;

    /// The names of the devices that have succeeded until now, in the order of their results, without the
    /// first `known` ones.
    Q_INVOKABLE [[nodiscard]] QStringList succeededDevices(int known) const;

    /// The number of devices that succeeded with a text. For settings this means that the device did not
    /// accept all of them; for addresses and names the text is the new value.
    Q_INVOKABLE [[nodiscard]] int partlyDone() const;

Q_SIGNALS:
    void changed(); ///< a property has changed

    /// New results: the names of devices and, parallel to them, their results (StepOutcome::result), in the
    /// order of completion. At the end of the batch, NotDone is reported for the devices that were not
    /// reached. cancelWaiting() reports the waiting devices a second time, as NotDone.
    void resulted(const QStringList &devices, const QList<int> &results);

    void finished(); ///< the batch has ended or was stopped; emitted once, after the last result

private:
    class Mailbox; ///< receives the reports of the engine's threads

    /// The progress after its last increase, and the time of that increase.
    struct Advance
    {
        double progress = 0;
        qint64 elapsed = 0; ///< milliseconds since the start of the batch
    };

    /// The step of a device. The first step that runs executes the plan's preparation before.
    [[nodiscard]] DeviceStep preparedStep(const BatchDevice &device,
                                          const std::shared_ptr<std::once_flag> &flag) const;
    [[nodiscard]] bool isRetryable(const Entry &entry) const;
    [[nodiscard]] bool hasOtherAccount(const Entry &entry) const; ///< than the refused account
    /// The entries of this batch, then those of the batches that it retries without devices listed already.
    [[nodiscard]] QList<const Entry *> allEntries() const;
    /// The entry in this batch or in the batches that it retries; null if there is none.
    [[nodiscard]] const Entry *find(const QString &device) const;
    void takeUpdates();
    void noteAdvance();
    /// Stores the account of each step before it starts: a row can get another account while its step runs.
    void noteAccountsOfSteps();
    void deliver(const QList<BatchOutcome> &outcomes) const; ///< to the plan's takeOutcomes
    void finish();

    BatchEngine &m_engine;
    BatchPlan m_plan;
    QString m_title;
    BatchReport m_report;
    QPointer<Batch> m_retryOf; ///< not owned
    QList<Entry> m_entries;
    QHash<QString, qsizetype> m_indexByName; ///< indexes in m_entries, by device name
    const std::shared_ptr<Mailbox> m_mailbox;
    QTimer m_frame;             ///< delays takeUpdates() after a report
    QStringList m_succeeded;    ///< names, in the order of completion
    QList<qsizetype> m_running; ///< indexes of running steps, in the order of their start
    QDateTime m_began;
    QDateTime m_ended;
    qint64 m_start = 0; ///< milliseconds on the engine's clock
    int m_number = 0;   ///< of this batch in the engine
    int m_done = 0;
    double m_progress = 0; ///< of noteProgress()
    Advance m_advance;
    bool m_isRunning = false;
    bool m_isStopping = false;
    bool m_isPaused = false;
};
