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

/// One batch, for QML: its progress and the result of each device. Reports of the engine's threads arrive
/// here in groups, at most one every 16 ms.
///
/// Lives on the main thread; created and owned by Batches.
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
        StepOutcome outcome = {.result = BatchReport::NotDone, .text = {}};
        QDateTime time;        ///< of the outcome; invalid while there is none
        QString account = {};  ///< account of the step; empty if the plan has no accountOf
        QByteArray login = {}; ///< hash of account and password of the step, compared for a retry
    };

    /// `engine` must outlive this object.
    Batch(BatchEngine &engine, BatchPlan plan, QObject *parent = nullptr);
    ~Batch() override;

    /// Starts the batch; may be called once. Returns false if the engine does not accept it.
    bool start();

    /// Name of the work; after cancelWaiting() the name of the step that was cancelled.
    [[nodiscard]] const QString &title() const { return m_title; }
    /// The number of devices for each kind of result, in the user's language.
    [[nodiscard]] QString summary() const;
    [[nodiscard]] int total() const { return static_cast<int>(m_entries.size()); }
    /// The number of devices with an outcome, also a failed one.
    [[nodiscard]] int done() const { return m_done; }
    /// 0 to 1: the share of done() in total(), or the value of noteProgress() if that is greater.
    [[nodiscard]] double progress() const;
    /// Sets the progress (0 to 1) of all devices together, for batches with long steps.
    void noteProgress(double progress);

    /// Address and port of a device with a running step, or its name if it has no address; empty if no step
    /// runs.
    [[nodiscard]] QString device() const;
    [[nodiscard]] bool isRunning() const { return m_isRunning; }
    [[nodiscard]] bool isStopping() const { return m_isRunning && m_isStopping; }

    /// Whether the batch is paused, because too many devices in a row refused the password, until the user
    /// decides.
    [[nodiscard]] bool isPaused() const { return m_isRunning && m_isPaused && !m_isStopping; }

    /// The number of refused passwords in a row after which the batch is paused; 0: never.
    [[nodiscard]] int refusalsInARow() const { return m_plan.policy.wrongPasswordsInARow; }

    /// The names of the accounts that devices refused, as one line; empty if there are none or if the plan
    /// has no accountOf.
    [[nodiscard]] QString refusedAccounts() const;

    /// For a retry: the number of failed or not done devices of the earlier batches that the retry left out.
    [[nodiscard]] int failedBefore() const;

    /// Estimated remaining seconds. -1 if the batch does not run, in its first two seconds, without progress,
    /// and when the estimate has passed without further progress.
    [[nodiscard]] int secondsLeft() const;
    [[nodiscard]] BatchReport *report() { return &m_report; }
    /// Whether Batches::putAddressesBack() can revert the batch.
    [[nodiscard]] bool changesAddresses() const { return !m_plan.addressesBefore.isEmpty(); }
    /// Time of start().
    [[nodiscard]] const QDateTime &began() const { return m_began; }
    /// Invalid until the end of the batch.
    [[nodiscard]] const QDateTime &ended() const { return m_ended; }
    [[nodiscard]] const QList<Entry> &entries() const { return m_entries; }
    [[nodiscard]] const BatchPlan &plan() const { return m_plan; }

    /// Whether a device may be retried, now or after its account has changed.
    [[nodiscard]] bool hasRetryable() const;

    /// Releases the step maker of the plan, which may hold a password. The batch cannot be retried
    /// afterwards.
    void releaseSteps();

    /// Stops the batch: steps that have not started are dropped, running steps end at their next safe point.
    Q_INVOKABLE void stop();

    /// Continues a paused batch.
    Q_INVOKABLE void resume();

    /// Sets the devices that wait for a further step to NotDone. `title` is the name of that step. Does
    /// nothing if no device waits.
    Q_INVOKABLE void cancelWaiting(const QString &title);

    /// Sets the batch that this batch retries.
    void setRetryOf(Batch *earlier);

    /// Accounts of devices may have changed, which can make a refused device retryable. Emits changed() if
    /// the plan has accountOf.
    void noteAccounts();

    /// The devices of this batch and of the batches that it retries for which a retry may succeed now. Empty
    /// after releaseSteps().
    [[nodiscard]] QList<BatchDevice> devicesToRetry() const;

    /// Identities of the devices that failed or have no result, including those of the batches that this one
    /// retries. Pages check their rows by them.
    Q_INVOKABLE [[nodiscard]] QStringList failedIdentities() const;

    /// Identities of the devices of this batch that refused their account, and of the devices without an
    /// outcome whose account has been refused by another device. Empty if no retry with another account is
    /// possible.
    Q_INVOKABLE [[nodiscard]] QStringList devicesOfRefusedAccounts() const;

    /// Names of the devices of devicesToRetry().
    Q_INVOKABLE [[nodiscard]] QStringList retryableDevices() const;

    /// Names of the devices of this batch that have not succeeded (failed, skipped, waiting or without a
    /// result).
    Q_INVOKABLE [[nodiscard]] QStringList failedDevices() const;

    /// Why no device of the batch can be retried, in the user's language; empty if one can.
    [[nodiscard]] QString retryRefusal() const;

    /// Whether the batch has ended and its device with this identity can be retried. False for devices of the
    /// batches that it retries.
    Q_INVOKABLE [[nodiscard]] bool canRetry(const QString &identity) const;

    /// The text of a device's outcome, from this batch or from the one that it retries; empty if there is
    /// none. `device` is the device's name.
    Q_INVOKABLE [[nodiscard]] QString textOf(const QString &device) const;
    /// Same for several devices, in the same order.
    Q_INVOKABLE [[nodiscard]] QStringList textsOf(const QStringList &devices) const;

    /// Maps of "device" and "message" for those of the devices that are in this batch or in the one that it
    /// retries. "message" is the text of the outcome, or the name of its result.
    Q_INVOKABLE [[nodiscard]] QVariantList messagesOf(const QStringList &devices) const;

    /// The devices that have succeeded until now, in the order of their results, without the first `known`
    /// ones.
    Q_INVOKABLE [[nodiscard]] QStringList succeededDevices(int known) const;

    /// The number of devices that succeeded with a text. For settings this means that the device did not
    /// accept all of them; for addresses and names the text is the new value.
    Q_INVOKABLE [[nodiscard]] int partlyDone() const;

Q_SIGNALS:
    void changed();

    /// Names of devices and their results, in the order of completion, and at the end of the batch those of
    /// devices that were not reached. cancelWaiting() reports the waiting devices a second time.
    void resulted(const QStringList &devices, const QList<int> &results);

    void finished(); ///< emitted once, after the last result

private:
    class Mailbox;

    /// The progress after its last increase, and the time of that.
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
    QTimer m_frame;
    QStringList m_succeeded;    ///< in the order of completion
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
